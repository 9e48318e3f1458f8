// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivereaderprocess.h"

#include <QFile>
#include <QIODevice>

#include <fcntl.h>
#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>
#include <csignal>
#include <vector>

#include <fixedplaces.h>

namespace VeskFM
{

namespace
{
constexpr int pollMs = 20;                 // how late a cancellation may be noticed
constexpr int largestRecord = 1024 * 1024; // a name and a link are far smaller
constexpr int readSize = 256 * 1024;

/// Starts the program with its input and output in place. Returns its id; 0 on failure.
pid_t start(const QStringList &arguments, int input, int output)
{
    // Not at a place that the program's own are put in before.
    const int safeInput = fcntl(input, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int safeOutput = fcntl(output, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    std::vector<QByteArray> texts{QByteArray(VESKFM_ARCHIVE_READER)};
    for (const QString &argument : arguments)
        texts.push_back(QFile::encodeName(argument));
    std::vector<char *> pointers;
    for (QByteArray &text : texts)
        pointers.push_back(text.data());
    pointers.push_back(nullptr);

    posix_spawn_file_actions_t actions;
    posix_spawn_file_actions_init(&actions);
    posix_spawn_file_actions_adddup2(&actions, safeInput, STDIN_FILENO);
    posix_spawn_file_actions_adddup2(&actions, safeOutput, STDOUT_FILENO);
    posix_spawn_file_actions_addclosefrom_np(&actions, STDERR_FILENO + 1);
    pid_t pid = 0;
    const int error = posix_spawn(&pid, VESKFM_ARCHIVE_READER, &actions, nullptr, pointers.data(), environ);
    posix_spawn_file_actions_destroy(&actions);
    close(safeInput);
    close(safeOutput);
    return error == 0 ? pid : 0;
}

void end(pid_t pid)
{
    // Its id is its own as long as nobody has asked for its end; the process may be set up to have it forgotten at once.
    if (waitpid(pid, nullptr, WNOHANG) != 0)
        return;
    kill(pid, SIGKILL);
    while (waitpid(pid, nullptr, 0) < 0 && errno == EINTR) {}
}
} // namespace

ArchiveError ArchiveReaderProcess::run(const QStringList &arguments, int archive) const
{
    int ends[2];
    if (pipe2(ends, O_CLOEXEC) != 0)
        return ArchiveError::NoReader;
    QStringList all = arguments;
    all.insert(1, QStringLiteral("--parent=%1").arg(getpid()));
    const pid_t pid = start(all, archive, ends[1]);
    close(ends[1]);
    const ArchiveError error = pid > 0 ? follow(ends[0]) : ArchiveError::NoReader;
    close(ends[0]);
    if (pid > 0)
        end(pid);
    return error;
}

/// Reads until the last record, which tells the result.
ArchiveError ArchiveReaderProcess::follow(int output) const
{
    std::vector<char> chunk(readSize);
    QByteArray pending;
    bool isBegun = false;
    while (true) {
        pollfd waiting = {output, POLLIN, 0};
        const int ready = poll(&waiting, 1, pollMs);
        if (isCancelled && isCancelled())
            return ArchiveError::Cancelled;
        if (ready <= 0)
            continue;
        const ssize_t count = read(output, chunk.data(), chunk.size());
        pending.append(chunk.data(), int(qMax<ssize_t>(count, 0)));
        if (count == 0 || pending.size() > largestRecord + readSize)
            return ArchiveError::Failed;
        ArchiveError result = ArchiveError::None;
        const Step last = takeRecords(&pending, &isBegun, &result);
        if (last == Ended || last == Broken)
            return last == Ended ? result : ArchiveError::Failed;
    }
}

/// Takes all complete records from the front.
ArchiveReaderProcess::Step ArchiveReaderProcess::takeRecords(QByteArray *pending, bool *isBegun,
                                                             ArchiveError *result) const
{
    QDataStream stream(*pending);
    stream.setVersion(ArchiveRecords::streamVersion);
    if (!*isBegun) {
        quint32 magic = 0;
        stream >> magic;
        if (stream.status() != QDataStream::Ok)
            return Incomplete;
        if (magic != ArchiveRecords::magic)
            return Broken;
        *isBegun = true;
    }
    qint64 taken = stream.device()->pos();
    Step step = Taken;
    while (step == Taken) {
        step = takeRecord(&stream, result);
        if (step == Taken)
            taken = stream.device()->pos();
    }
    pending->remove(0, int(taken));
    return step;
}

ArchiveReaderProcess::Step ArchiveReaderProcess::takeRecord(QDataStream *stream, ArchiveError *result) const
{
    quint8 tag = 0;
    quint8 error = 0;
    qint32 percent = 0;
    ArchiveNodeRecord node;
    *stream >> tag;
    if (tag == ArchiveRecords::Node)
        *stream >> node;
    else if (tag == ArchiveRecords::Progress)
        *stream >> percent;
    else if (tag == ArchiveRecords::End)
        *stream >> error;
    if (stream->status() != QDataStream::Ok)
        return Incomplete;
    switch (tag) {
    case ArchiveRecords::Node:
        return onNode && onNode(node) ? Taken : Broken;
    case ArchiveRecords::Progress:
        if (onProgress)
            onProgress(percent);
        return Taken;
    case ArchiveRecords::End:
        *result = ArchiveError(error);
        return error <= quint8(ArchiveError::Cancelled) ? Ended : Broken;
    default:
        return Broken;
    }
}

} // namespace VeskFM
