// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/clipboard.h>

#include <QList>
#include <QStringList>
#include <QUrl>

class QMimeData;

namespace VeskFM
{

/// One family of clipboard formats for lists of files. Clipboard asks its processors in turn.
///
/// Thread: GUI.
class VESKFM_EXPORT ClipboardProcessor
{
public:
    virtual ~ClipboardProcessor();
    virtual QStringList mimeTypes() const = 0; ///< the formats that this processor writes and reads
    /// Adds its formats to @p data.
    virtual void write(QMimeData *data, Clipboard::Operation operation, const QList<QUrl> &urls) const = 0;
    /// The URLs in @p data, if it carries this processor's format and was made for @p operation.
    /// @param handled set to whether the data was this processor's to answer, which an empty answer may be, too
    virtual QList<QUrl> read(const QMimeData *data, Clipboard::Operation operation, bool *handled) const = 0;
};

/// The URI list of RFC 2483, with the marker "application/x-kde-cutselection" that tells a cut from a copy.
class VESKFM_EXPORT DefaultProcessor : public ClipboardProcessor
{
public:
    ~DefaultProcessor() override;
    QStringList mimeTypes() const override;
    void write(QMimeData *data, Clipboard::Operation operation, const QList<QUrl> &urls) const override;
    QList<QUrl> read(const QMimeData *data, Clipboard::Operation operation, bool *handled) const override;
};

/// "x-special/gnome-copied-files": the word "copy" or "cut" in the first line, then a URL in each. Not for drags.
class VESKFM_EXPORT GnomeProcessor : public ClipboardProcessor
{
public:
    ~GnomeProcessor() override;
    QStringList mimeTypes() const override;
    void write(QMimeData *data, Clipboard::Operation operation, const QList<QUrl> &urls) const override;
    QList<QUrl> read(const QMimeData *data, Clipboard::Operation operation, bool *handled) const override;
};

} // namespace VeskFM
