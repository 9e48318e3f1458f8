// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// vesk-open: opens files from the command line, and for a file manager that runs as root under sudo.

#include "applicationdialog.h"
#include "guihost.h"
#include "launch.h"

#include <veskplatform/vfs.h>

#include <QApplication>
#include <QDir>
#include <QTextCodec>
#include <QUrl>

#include <cstdio>

using namespace VeskFM;

namespace
{

enum ExitCode { Done = 0, NotOpened = 1, WrongUsage = 2 };

constexpr char usage[] = "usage: vesk-open [-e|-o] PATH...   open with the default application, or with a chosen one\n"
                         "       vesk-open --canOpen PATH    exit code 0 if there is an application for it, else 1\n"
                         "Exit codes: 0 done, 1 not opened, 2 wrong usage.\n";

/// Paths are bytes; relative ones count from the current directory.
Entry entryForPath(QByteArray path)
{
    if (!path.startsWith('/'))
        path.prepend(QDir::currentPath().toLocal8Bit() + '/');
    const QUrl url = QUrl::fromEncoded("file://" + path.toPercentEncoding("/"), QUrl::StrictMode);
    return VFS::ptr()->entriesFromUrls({url}).value(0);
}

int fail(const QByteArray &path, const char *why)
{
    std::fprintf(stderr, "vesk-open: %s: %s\n", path.constData(), why);
    return NotOpened;
}

int choose(const EntryList &entries)
{
    bool started = false;
    auto *const dialog = new ApplicationDialog(entries, LaunchContext());
    QObject::connect(dialog, &ApplicationDialog::opened, dialog, [&started](bool opened) { started = opened; });
    QApplication::exec();
    return started ? Done : NotOpened;
}

} // namespace

int main(int argc, char **argv)
{
    chooseHostPlatform();
    QApplication application(argc, argv);
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    QList<QByteArray> paths;
    for (int i = 1; i < argc; ++i)
        paths.append(argv[i]);
    const QByteArray option = !paths.isEmpty() && paths.first().startsWith('-') ? paths.takeFirst() : QByteArray("-e");
    if (option == "--help") {
        std::fputs(usage, stdout);
        return Done;
    }
    const bool known = option == "-e" || option == "-o" || option == "--canOpen";
    if (!known || paths.isEmpty() || (option == "--canOpen" && paths.size() != 1)) {
        std::fputs(usage, stderr);
        return WrongUsage;
    }

    EntryList entries;
    for (const QByteArray &path : qAsConst(paths)) {
        const Entry entry = entryForPath(path);
        if (entry.isNull())
            return fail(path, "there is no such file");
        entries.append(entry);
    }
    if (option == "--canOpen")
        return canOpen(entries.first()) ? Done : NotOpened;
    if (option == "-o") {
        chooseHostIconTheme();
        return choose(entries);
    }
    const EntryList left = openWithDefaults(entries, LaunchContext());
    return left.isEmpty() ? int(Done)
                          : fail(paths.value(entries.indexOf(left.first())), "there is no application for it");
}
