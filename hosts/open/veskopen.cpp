// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// vesk-open: opens files from the command line, and for a file manager that runs as root under sudo.

#include "opening/applicationdialog.h"
#include "opening/guihost.h"

#include <veskplatform/vfs.h>

#include <QFile>
#include <QTextCodec>
#include <QUrl>

#include <cstdio>

using namespace VeskFM;

namespace
{

enum ExitCode { Done = 0, NotOpened = 1, WrongUsage = 2, NoSuchFile = 3, NothingChosen = 4 };

constexpr char usage[] = R"(usage: vesk-open [-e] [--] PATH...
       vesk-open -o [--] PATH...
       vesk-open --canOpen [--] PATH

  -e          open each file with the default application for its type; so without an option, too
  -o          let the user choose the application
  --canOpen   open nothing, and tell by the exit code whether there is an application
  -h, --help  show this

Exit codes:
  0  done; the file can be opened
  1  a file was not opened: there is no application for it, the application did not start, or there is no display to
     choose one on; the file cannot be opened
  2  the arguments are wrong
  3  there is no such file; the others were opened
  4  the user chose no application
)";

struct Arguments
{
    QByteArray option = "-e";
    QList<QByteArray> paths; // as the system has them

    bool areRight() const
    {
        const bool isKnown = option == "-e" || option == "-o" || option == "--canOpen";
        return isKnown && !paths.isEmpty() && (option != "--canOpen" || paths.size() == 1);
    }
};

Arguments readArguments(int argc, char **argv)
{
    Arguments arguments;
    for (int i = 1; i < argc; ++i)
        arguments.paths.append(argv[i]);
    QList<QByteArray> &paths = arguments.paths;
    if (!paths.isEmpty() && paths.first().startsWith('-') && paths.first() != "--")
        arguments.option = paths.takeFirst();
    if (!paths.isEmpty() && paths.first() == "--")
        paths.removeFirst();
    return arguments;
}

void complain(const QByteArray &path, const char *problem)
{
    std::fprintf(stderr, "vesk-open: %s: %s\n", path.constData(), problem);
}

/// A path is the bytes of a name on the disk, or else a VFS path: a place, or what stands for such bytes.
Entry entryForPath(const QByteArray &path, const QByteArray &directory)
{
    const QByteArray absolute = path.startsWith('/') ? path : directory + '/' + path;
    const QUrl url = QUrl::fromEncoded("file://" + absolute.toPercentEncoding("/"), QUrl::StrictMode);
    const Entry entry = path.isEmpty() ? Entry() : VFS::ptr()->entriesFromUrls({url}).value(0);
    return entry.isNull() ? VFS::ptr()->entry(QString::fromUtf8(path)) : entry;
}

int chooseApplication(const OpenTargetList &targets, const LaunchContext &context)
{
    auto *const dialog = new ApplicationDialog(targets, context);
    QObject::connect(dialog, &QDialog::finished, qApp,
                     [](int result) { QCoreApplication::exit(result == QDialog::Accepted ? Done : NothingChosen); });
    return QApplication::exec();
}

int run(const Arguments &arguments, const LaunchContext &context)
{
    int code = Done;
    OpenTargetList targets;
    for (const QByteArray &path : arguments.paths) {
        const Entry entry = entryForPath(path, context.workingDirectory);
        const OpenTargetList found = openTargets(EntryList(entry));
        targets += found;
        if (found.isEmpty()) {
            complain(path, entry.isNull() ? "there is no such file" : "this leads nowhere");
            code = NoSuchFile;
        }
    }
    if (targets.isEmpty())
        return code;
    if (arguments.option == "--canOpen")
        return hasDefault(targets.first()) ? Done : NotOpened;
    if (arguments.option == "-o")
        return qMax(code, chooseApplication(targets, context));

    const OpenTargetList left = openWithDefaults(targets, context);
    for (const OpenTarget &target : left)
        complain(target.name.toUtf8(), "there is no application for it that starts");
    return left.isEmpty() ? code : qMax<int>(code, NotOpened);
}

} // namespace

int main(int argc, char **argv)
{
    const Arguments arguments = readArguments(argc, argv);
    if (arguments.option == "--help" || arguments.option == "-h") {
        std::fputs(usage, stdout);
        return Done;
    }
    if (!arguments.areRight()) {
        std::fputs(usage, stderr);
        return WrongUsage;
    }

    const LaunchContext context = LaunchContext::fromProcess();
    if (arguments.option == "-o") {
        const GuiHost application(argc, argv, QStringLiteral("vesk-open"));
        if (GuiHost::hasDisplay())
            return run(arguments, context);
        complain(arguments.paths.first(), "there is no display to choose an application on");
        return NotOpened;
    }
    const QCoreApplication application(argc, argv); // needs no display
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    return run(arguments, context);
}
