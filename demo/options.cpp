// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "options.h"

#include <veskplatform/vfs.h>

#include <QCommandLineParser>
#include <QCoreApplication>
#include <QDir>
#include <QRegularExpression>
#include <QUrl>

using namespace VeskFM;

namespace
{

struct Texts
{
    Q_DECLARE_TR_FUNCTIONS(Options)
};

// The parser works on text, names on disk are bytes: as Latin-1 every byte goes through it unharmed.
QStringList rawArguments(int argc, char **argv)
{
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments += QString::fromLatin1(argv[i]);
    return arguments;
}

QString textOption(const QCommandLineParser &parser, const QString &name)
{
    return QString::fromUtf8(parser.value(name).toLatin1());
}

void describeOptions(QCommandLineParser *parser)
{
    parser->setApplicationDescription(Texts::tr(
        "Shows directories. In a kiosk there is no menu bar, and no way to type a path, to change settings, to open\n"
        "another window, or to start an application that the kiosk does not allow."));
    parser->addPositionalArgument(
        QStringLiteral("DIR"),
        Texts::tr("Directory to show, a path or a URL; the current one if not given. Each gets a "
                  "window."),
        QStringLiteral("[DIR...]"));
    parser->addOptions({
        {{QStringLiteral("h"), QStringLiteral("help")}, Texts::tr("Show this help and exit.")},
        {QStringLiteral("print"), Texts::tr("Print the rows as a table and exit.")},
        {QStringLiteral("screenshot"), Texts::tr("Save a picture of the window and exit."), QStringLiteral("FILE")},
        {QStringLiteral("hidden"), Texts::tr("Show hidden files too.")},
        {QStringLiteral("sort"), Texts::tr("Sort by a column: Name, Type, Size, Modified, ..."),
         QStringLiteral("COLUMN[,desc]")},
        {QStringLiteral("filter"), Texts::tr("Show only names that match: *.png;*.jpg, or a part of the name."),
         QStringLiteral("PATTERN")},
    });
}

} // namespace

QString readOptions(int argc, char **argv, Options *options)
{
    QCommandLineParser parser;
    describeOptions(&parser);
    const bool parsed = parser.parse(rawArguments(argc, argv));
    const QStringList directories = parser.positionalArguments();
    options->directories.clear();
    for (const QString &directory : directories)
        options->directories += directory.toLatin1();
    if (directories.isEmpty())
        options->directories += QByteArrayLiteral(".");
    options->help = parser.isSet(QStringLiteral("help"));
    options->print = parser.isSet(QStringLiteral("print"));
    options->screenshotFile = textOption(parser, QStringLiteral("screenshot"));
    options->hidden = parser.isSet(QStringLiteral("hidden"));
    options->filter = textOption(parser, QStringLiteral("filter"));
    const QStringList sorting = textOption(parser, QStringLiteral("sort")).split(QLatin1Char(','));
    options->sortProperty = sorting.value(0);
    options->sortOrder = sorting.value(1) == QLatin1String("desc") ? Model::Descending : Model::Ascending;
    if (!parsed)
        return parser.errorText();
    return options->directories.size() > 1 && options->isHeadless() ? Texts::tr("more than one directory") : QString();
}

QString helpText()
{
    QCommandLineParser parser;
    describeOptions(&parser);
    return parser.helpText();
}

Entry entryForArgument(const QByteArray &path)
{
    if (path.startsWith("file:/"))
        return VFS::ptr()->entriesFromUrls({QUrl::fromEncoded(path)}).value(0);
    // A URL keeps the bytes of a name that is no valid text; the VFS turns them into its own writing.
    const QString relative = QString::fromLatin1(path);
    const QString here = QString::fromLatin1(QFile::encodeName(QDir::currentPath()));
    const QByteArray absolute = QDir::cleanPath(QDir(here).absoluteFilePath(relative)).toLatin1();
    const QUrl url = QUrl::fromEncoded("file://" + absolute.toPercentEncoding("/"), QUrl::StrictMode);
    const Entry entry = VFS::ptr()->entriesFromUrls({url}).value(0);
    return entry.isNull() ? VFS::ptr()->entry(QString::fromUtf8(path)) : entry; // other programs pass VFS paths
}

QStringList nameFilterPatterns(const QString &text)
{
    static const QRegularExpression wildcards(QStringLiteral("[*?\\[\\]]"));
    QStringList patterns;
    for (const QString &part : text.split(QLatin1Char(';'), Qt::SkipEmptyParts)) {
        const QString pattern = part.trimmed();
        if (!pattern.isEmpty())
            patterns += pattern.contains(wildcards) ? pattern : QLatin1Char('*') + pattern + QLatin1Char('*');
    }
    return patterns.isEmpty() ? QStringList(QStringLiteral("*")) : patterns;
}

bool applyOptions(const Options &options, Model *model)
{
    model->setShowHiddenEntries(options.hidden);
    model->setNameFiltersForFilesOnly(false); // who types a part of a name looks for that name, whatever it is
    model->setNameFilters(nameFilterPatterns(options.filter));
    if (options.sortProperty.isEmpty())
        return true;
    const QStringList names = model->internalPropertyNames();
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).compare(options.sortProperty, Qt::CaseInsensitive) == 0) {
            model->rebuildWithPropertySortIndex(i, options.sortOrder);
            return true;
        }
    }
    return false;
}
