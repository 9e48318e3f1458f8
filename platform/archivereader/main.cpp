// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

// Reads archives for the programs of the file manager, as a process of its own: a damaged archive, or one that was made to
// do harm, ends this process and nothing else.
//
//   vesk-archive list [--parent=PID] [LIMIT]... FILE
//   vesk-archive extract [--parent=PID] [LIMIT]... FILE DIRECTORY
//
// FILE may be "-", the standard input, which has to be a regular file. DIRECTORY has to be empty. ArchiveRecords tells what
// is written, ArchiveError what the exit status means; PID is of a process to end with.

#include "../archivelimits.h"
#include "extractor.h"
#include "memberreader.h"
#include "membertree.h"
#include "output.h"

#include <QFile>
#include <QTextCodec>

#include <fcntl.h>
#include <sys/prctl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <exception>

using namespace VeskFM;

namespace
{

constexpr rlim_t mostProcessorSeconds = 3600; // should a decoder never end

#if defined(__SANITIZE_ADDRESS__) || defined(__SANITIZE_THREAD__)
constexpr bool limitsMemory = false; // their shadow memory takes terabytes of address space
#else
constexpr bool limitsMemory = true;
#endif

void setLimit(__rlimit_resource resource, rlim_t most)
{
    const struct rlimit limit = {most, most};
    setrlimit(resource, &limit);
}

void confine(const ArchiveLimits &limits)
{
    setLimit(RLIMIT_CORE, 0);
    setLimit(RLIMIT_CPU, mostProcessorSeconds);
    setLimit(RLIMIT_FSIZE, rlim_t(limits.unpackedBytes));
    if (limitsMemory)
        setLimit(RLIMIT_AS, rlim_t(limits.memoryBytes));
    std::signal(SIGXFSZ, SIG_IGN);                                // a write fails instead
    std::set_terminate([] { _exit(int(ArchiveError::Failed)); }); // there is no memory left, nor anything to be said
    prctl(PR_SET_NO_NEW_PRIVS, 1, 0, 0, 0);
}

/// Ends with the thread that started us, which waits for the end. False when that is gone already.
bool endWith(pid_t parent)
{
    return prctl(PR_SET_PDEATHSIG, SIGKILL) == 0 && getppid() == parent;
}

struct Request
{
    bool isExtraction = false;
    QString file;
    QString directory;
    ArchiveLimits limits;
    qint64 parent = 0;

    bool take(QStringList arguments)
    {
        const QString command = arguments.isEmpty() ? QString() : arguments.takeFirst();
        const QLatin1String parentOption("--parent=");
        while (!arguments.isEmpty() && arguments.first().startsWith(QLatin1String("--"))) {
            const QString option = arguments.takeFirst();
            if (option.startsWith(parentOption))
                parent = option.mid(parentOption.size()).toLongLong();
            else if (!limits.take(option))
                return false;
        }
        isExtraction = command == QLatin1String("extract");
        file = arguments.value(0);
        directory = arguments.value(1);
        return (isExtraction && arguments.size() == 2) || (command == QLatin1String("list") && arguments.size() == 1);
    }
};

ArchiveError work(const Request &request, Output *output)
{
    const int file = request.file == QLatin1String("-")
        ? STDIN_FILENO
        : open(QFile::encodeName(request.file).constData(), O_RDONLY | O_CLOEXEC | O_NONBLOCK);
    struct stat facts = {};
    if (file < 0 || fstat(file, &facts) != 0 || !S_ISREG(facts.st_mode))
        return ArchiveError::Unreadable;
    MemberReader reader(file, facts.st_size, request.limits);
    MemberTree tree(request.limits);
    ArchiveError error = tree.build(&reader);
    if (error != ArchiveError::None)
        return error;
    if (!request.isExtraction) {
        output->writeTree(tree);
        return ArchiveError::None;
    }
    const int directory = open(QFile::encodeName(request.directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (directory < 0)
        return ArchiveError::CannotWrite;
    const qint64 total = tree.unpackedBytes();
    Extractor extractor(tree, directory, request.limits.unpackedBytes,
                        [&](qint64 done) { output->writeProgress(done, total); });
    return extractor.extract(&reader);
}

} // namespace

int main(int argc, char **argv)
{
    // No application object: there is no event loop, and nothing here depends on the locale of the user.
    QTextCodec::setCodecForLocale(QTextCodec::codecForName("UTF-8"));
    qInstallMessageHandler([](QtMsgType, const QMessageLogContext &, const QString &) {}); // damage is told once, by us
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QFile::decodeName(argv[i]));
    Request request;
    if (!request.take(arguments) || (request.parent > 0 && !endWith(pid_t(request.parent))))
        return int(ArchiveError::Misuse);
    confine(request.limits);
    Output output;
    const ArchiveError error = work(request, &output);
    output.writeEnd(error);
    return int(error);
}
