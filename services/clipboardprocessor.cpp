// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/clipboardprocessor.h>

#include <QMimeData>

namespace VeskFM
{

namespace
{

const QString uriListFormat = QStringLiteral("text/uri-list");
const QString cutMarkerFormat = QStringLiteral("application/x-kde-cutselection");
const QString copiedFilesFormat = QStringLiteral("x-special/gnome-copied-files");

bool isClipboardOperation(Clipboard::Operation operation)
{
    return operation == Clipboard::Copy || operation == Clipboard::Cut;
}

// One URL a line. Other programs end the lines in CR LF or in LF, and the text in a NUL or not.
QList<QUrl> parseUrls(QByteArray text)
{
    if (text.endsWith('\0'))
        text.chop(1);
    QList<QUrl> urls;
    const QList<QByteArray> lines = text.split('\n');
    for (const QByteArray &line : lines) {
        const QByteArray encoded = line.trimmed();
        if (!encoded.isEmpty())
            urls.append(QUrl::fromEncoded(encoded, QUrl::TolerantMode));
    }
    return urls;
}

} // namespace

ClipboardProcessor::~ClipboardProcessor() = default;
DefaultProcessor::~DefaultProcessor() = default;
GnomeProcessor::~GnomeProcessor() = default;

QStringList DefaultProcessor::mimeTypes() const
{
    return {uriListFormat, cutMarkerFormat};
}

void DefaultProcessor::write(QMimeData *data, Clipboard::Operation operation, const QList<QUrl> &urls) const
{
    if (!urls.isEmpty()) {
        QByteArray list;
        for (const QUrl &url : urls)
            list += url.toEncoded(QUrl::FullyEncoded) + "\r\n";
        data->setData(uriListFormat, list);
    }
    if (isClipboardOperation(operation))
        data->setData(cutMarkerFormat, operation == Clipboard::Cut ? "1" : "0");
}

QList<QUrl> DefaultProcessor::read(const QMimeData *data, Clipboard::Operation operation, bool *handled) const
{
    *handled = data->hasFormat(uriListFormat);
    if (!*handled)
        return {};
    if (isClipboardOperation(operation)) {
        const Clipboard::Operation written = data->data(cutMarkerFormat) == "1" ? Clipboard::Cut : Clipboard::Copy;
        if (written != operation)
            return {};
    }
    return parseUrls(data->data(uriListFormat));
}

QStringList GnomeProcessor::mimeTypes() const
{
    return {copiedFilesFormat};
}

void GnomeProcessor::write(QMimeData *data, Clipboard::Operation operation, const QList<QUrl> &urls) const
{
    if (!isClipboardOperation(operation))
        return;
    QByteArray text = operation == Clipboard::Cut ? "cut\n" : "copy\n";
    for (int i = 0; i < urls.size(); ++i) {
        if (i > 0)
            text += '\n';
        text += urls.at(i).toEncoded(QUrl::FullyEncoded);
    }
    data->setData(copiedFilesFormat, text);
}

QList<QUrl> GnomeProcessor::read(const QMimeData *data, Clipboard::Operation operation, bool *handled) const
{
    *handled = false;
    if (!isClipboardOperation(operation)) // drops are the URI list's
        return {};
    const QByteArray text = data->data(copiedFilesFormat);
    if (text.isEmpty())
        return {};
    *handled = true;
    const int wordEnd = text.indexOf('\n');
    // Whatever is not exactly "copy" is a cut: that is how the programs that made up this format read it.
    const Clipboard::Operation written = text.left(wordEnd) == "copy" ? Clipboard::Copy : Clipboard::Cut;
    if (written != operation || wordEnd < 0)
        return {};
    return parseUrls(text.mid(wordEnd + 1));
}

} // namespace VeskFM
