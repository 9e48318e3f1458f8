// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// A small file manager. It shows how a program uses the library.

#include "containers.h"
#include "listingstate.h"
#include "mainwindow.h"
#include "options.h"
#include "printabletext.h"
#include "screenshot.h"
#include "tableprinter.h"

#include <veskfm/entryviewparameters.h>
#include <veskfm/modelfilter.h>
#include <veskplatform/vfs.h>

#include <QApplication>
#include <QFont>
#include <QIcon>
#include <QLocale>
#include <QStandardPaths>
#include <QTextStream>
#include <QTimer>
#include <QTranslator>

#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <vector>

using namespace VeskFM;

namespace
{

constexpr int listingDeadlineMs = 60000;
constexpr int offscreenFontSize = 10; // points

int fail(const QString &message)
{
    std::fprintf(stderr, "vesk-browser: %s\n", qUtf8Printable(message));
    return 1;
}

// In a bare environment, or for a locale that is not installed, the toolkit would read and write file names as ASCII, and
// lose all others. The language stays what was asked for.
void chooseEncoding()
{
    std::setlocale(LC_ALL, "");
    if (MB_CUR_MAX == 1) {
        const QByteArray everything = qgetenv("LC_ALL");
        for (const char *name : {"LANG", "LC_MESSAGES"}) {
            if (!everything.isEmpty())
                qputenv(name, everything);
        }
        qunsetenv("LC_ALL");
        qputenv("LC_CTYPE", "C.UTF-8");
    }
    std::setlocale(LC_ALL, "");
}

// Without a window to show nobody needs a display, and it is no surprise when there is none.
void choosePlatform(const Options &options)
{
    if (options.isHeadless() && qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
}

bool hasDisplay()
{
    return !qEnvironmentVariableIsEmpty("DISPLAY") || !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY")
        || !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
}

// Outside a desktop session nobody has chosen an icon theme; any complete one that is installed will do.
void chooseIconTheme()
{
    if (QIcon::themeSearchPaths() == QStringList(QStringLiteral(":/icons"))) {
        const QStringList installed = QStandardPaths::locateAll(
            QStandardPaths::GenericDataLocation, QStringLiteral("icons"), QStandardPaths::LocateDirectory);
        QIcon::setThemeSearchPaths(QIcon::themeSearchPaths() + installed);
    }
    for (const char *name : {"breeze", "Adwaita", "Papirus", "oxygen", "gnome", "Tango", "elementary"}) {
        if (QIcon::hasThemeIcon(QStringLiteral("folder")))
            return;
        QIcon::setThemeName(QString::fromLatin1(name));
    }
}

// Without a screen the toolkit takes a font that is far too large for a window of this size.
void chooseFont()
{
    if (QGuiApplication::platformName() != QLatin1String("offscreen"))
        return;
    QFont font = QApplication::font();
    font.setPointSize(offscreenFontSize);
    QApplication::setFont(font);
}

// The English one holds the plural forms, which every language without a catalogue needs too.
void installCatalogue()
{
    const QString name = QStringLiteral("vesk-browser");
    const QString directory = QStringLiteral(VESKFM_TRANSLATIONS_DIR);
    auto *const catalogue = new QTranslator(qApp);
    if (catalogue->load(QLocale::system(), name, QStringLiteral("_"), directory)
        || catalogue->load(name + QLatin1String("_en"), directory))
        QCoreApplication::installTranslator(catalogue);
}

int printRows(const Options &options, const Entry &directory)
{
    EntryViewParameters::ptr()->setShowThumbnails(false); // nobody would see them
    Model model(Model::TableMode, ModelFilter::AllEntries, nullptr);
    if (!applyOptions(options, &model))
        return fail(QObject::tr("there is no column %1").arg(options.sortProperty));
    QObject::connect(&model, &Model::dirListed, qApp, &QCoreApplication::quit, Qt::QueuedConnection);
    QTimer::singleShot(listingDeadlineMs, qApp, [] { QCoreApplication::exit(1); });
    model.rebuild(directory);
    if (QCoreApplication::exec() != 0)
        return fail(QObject::tr("%1 does not answer").arg(printableText(directory.path())));

    QTextStream out(stdout);
    out.setCodec("UTF-8");
    TablePrinter(model).print(out);
    const QString problem = model.rowCount() == 0 ? accessProblem(directory) : QString();
    return problem.isEmpty() ? 0 : fail(printableText(directory.path()) + QLatin1String(": ") + problem);
}

int showWindows(const Options &options, const EntryList &directories)
{
    std::vector<std::unique_ptr<MainWindow>> windows;
    for (const Entry &directory : directories) {
        windows.push_back(std::make_unique<MainWindow>());
        if (!windows.back()->configure(options))
            return fail(QObject::tr("there is no column %1").arg(options.sortProperty));
        windows.back()->restoreLayout();
        windows.back()->openDirectory(directory);
        windows.back()->show();
    }
    return QApplication::exec();
}

int takePicture(const Options &options, const Entry &directory)
{
    MainWindow window;
    if (!window.configure(options))
        return fail(QObject::tr("there is no column %1").arg(options.sortProperty));
    window.openDirectory(directory);
    Screenshot screenshot(&window, options.screenshotFile);
    QString problem;
    QObject::connect(&screenshot, &Screenshot::finished, qApp, [&problem](const QString &text) {
        problem = text;
        QCoreApplication::quit();
    });
    QApplication::exec();
    return problem.isEmpty() ? 0 : fail(problem);
}

} // namespace

int main(int argc, char **argv)
{
    chooseEncoding();
    Options options;
    QString problem = readOptions(argc, argv, &options);
    choosePlatform(options);
    if (!hasDisplay())
        return fail(problem.isEmpty() ? QStringLiteral("there is no display; --print and --screenshot FILE need none")
                                      : problem);
    QApplication application(argc, argv);
    QApplication::setApplicationName(QStringLiteral("vesk-browser"));
    installCatalogue();
    problem = readOptions(argc, argv, &options);
    if (options.help) {
        std::fputs(qUtf8Printable(helpText()), stdout);
        return 0;
    }
    if (!problem.isEmpty())
        return fail(problem);
    EntryViewParameters::ptr()->initFromSettings();

    EntryList directories;
    for (const QByteArray &argument : qAsConst(options.directories)) {
        const Entry directory = entryForArgument(argument);
        const QString name = printableText(QString::fromUtf8(argument));
        if (directory.isNull() || !VFS::ptr()->isEntryExists(directory))
            return fail(QObject::tr("%1: there is no such directory").arg(name));
        if (!canBeShown(directory))
            return fail(QObject::tr("%1: not a directory").arg(name));
        directories.append(directory);
    }
    if (options.print)
        return printRows(options, directories.first());
    chooseIconTheme();
    chooseFont();
    return options.screenshotFile.isEmpty() ? showWindows(options, directories)
                                            : takePicture(options, directories.first());
}
