// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "makeoperation.h"

#include "filecontents.h"
#include "part.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

namespace
{

constexpr mode_t newFile = 0666; // less what the umask takes
constexpr mode_t newDirectory = 0777;

/// Tries the names in their order until one is not taken. @p make returns 0, or -1 with errno.
template <typename Make> Result makeUnderFreeName(FreeName name, QByteArray *taken, const Make &make)
{
    do {
        *taken = name.current();
        if (make(taken->constData()) == 0)
            return Result::Success;
        if (errno != EEXIST)
            return resultOfError(errno);
    } while (name.next());
    return Result::Exists;
}

int makeEmptyFile(int parent, const char *name)
{
    const Descriptor file(openat(parent, name, O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, newFile));
    return file ? 0 : -1;
}

/// Makes a file that @p fill writes; it has no name of its own before it is complete. Leaves its name in @p place.
template <typename Fill> Result makeFile(DiskPlace *place, const FreeName &name, mode_t mode, const Fill &fill)
{
    const int directory = place->directory.get();
    const QByteArray part = Part::freshName();
    Descriptor file(openat(directory, part.constData(), O_WRONLY | O_CREAT | O_EXCL | O_NOFOLLOW | O_CLOEXEC, mode));
    if (!file)
        return resultOfError(errno);
    Part::hold(file.get());
    Result result = fill(file.get());
    if (!file.close() && result == Result::Success)
        result = resultOfError(errno);
    if (result == Result::Success)
        result = renameToFreeName(directory, part, directory, name, &place->name);
    if (result != Result::Success)
        unlinkat(directory, part.constData(), 0);
    return result;
}

bool isDirectory(const QByteArray &path)
{
    struct stat facts = {};
    return stat(path.constData(), &facts) == 0 && S_ISDIR(facts.st_mode);
}

/// Nothing where there is no such directory: the root is not meant then.
QByteArray pathIn(const QByteArray &directory, const QByteArray &name)
{
    return directory.isEmpty() ? QByteArray() : directory + '/' + name;
}

/// The escapes of the freedesktop.org Desktop Entry format for a string; what would end the line cannot.
QByteArray escaped(const QString &text)
{
    QString value = text;
    value.replace(QLatin1Char('\\'), QLatin1String("\\\\"));
    value.replace(QLatin1Char('\n'), QLatin1String("\\n"));
    value.replace(QLatin1Char('\r'), QLatin1String("\\r"));
    value.replace(QLatin1Char('\t'), QLatin1String("\\t"));
    if (value.startsWith(QLatin1Char(' ')))
        value.replace(0, 1, QLatin1String("\\s"));
    return value.toUtf8();
}

/// A title, or for want of one the URL, as a file name.
QByteArray fileNameOf(const QString &title)
{
    QString name = title.simplified();
    for (QChar &character : name) {
        if (character == QLatin1Char('/') || !(character.isPrint() || character.isSurrogate()))
            character = QLatin1Char('_');
    }
    return name.toUtf8() + ".desktop";
}

Result writeAll(int file, const QByteArray &content)
{
    for (int written = 0; written < content.size();) {
        const ssize_t step = write(file, content.constData() + written, size_t(content.size() - written));
        if (step < 0 && errno != EINTR)
            return resultOfError(errno);
        written += int(qMax<ssize_t>(step, 0));
    }
    return Result::Success;
}

} // namespace

MakeOperation::MakeOperation(Kind kind, const QString &stamp, const QString &entry, const QString &templatePath)
    : Operation(stamp, entry)
    , m_kind(kind)
    , m_entry(entry)
    , m_templatePath(templatePath)
{
}

void MakeOperation::run()
{
    QByteArray path = diskBytes(m_entry);
    if (m_kind == FromTemplate && isDirectory(path)) {
        const QByteArray original = diskBytes(m_templatePath);
        path = pathIn(path, original.mid(original.lastIndexOf('/') + 1));
    }
    DiskPlace place;
    if (!note(openTarget(path, &place)))
        return;
    const int parent = place.directory.get();
    Result result = Result::Success;
    if (m_kind == Directory)
        result = makeUnderFreeName(FreeName::like(place.name, true), &place.name,
                                   [parent](const char *name) { return mkdirat(parent, name, newDirectory); });
    else if (m_kind == EmptyFile)
        result = makeUnderFreeName(FreeName::like(place.name, false), &place.name,
                                   [parent](const char *name) { return makeEmptyFile(parent, name); });
    else
        result = makeFromTemplate(&place);
    if (note(result))
        addMade(place.fullPath());
}

/// The new file is the user's own and of now: only what the template holds is copied, and that it can be executed.
Result MakeOperation::makeFromTemplate(DiskPlace *place)
{
    const Descriptor source(open(diskBytes(m_templatePath).constData(), O_RDONLY | O_NONBLOCK | O_CLOEXEC));
    struct stat facts = {};
    if (!source || fstat(source.get(), &facts) != 0)
        return resultOfError(errno);
    if (!S_ISREG(facts.st_mode))
        return Result::NotSupported;
    progress().setTotal(facts.st_size);
    const mode_t executable = facts.st_mode & (S_IXUSR | S_IXGRP | S_IXOTH);
    return makeFile(place, FreeName::like(place->name, false), newFile | executable,
                    [&](int file) { return FileContents(&progress()).copy(source.get(), facts, file); });
}

ShortcutOperation::ShortcutOperation(const QString &stamp, const QStringList &entries, const QString &destination)
    : Operation(stamp, destination.isEmpty() ? entries.value(0) : destination)
    , m_entries(entries)
    , m_destination(destination)
{
}

void ShortcutOperation::run()
{
    note(m_entries.isEmpty() ? Result::NotFound : Result::Success);
    progress().setTotal(m_entries.size() * Progress::unitsPerNode);
    DiskPlace target;
    for (const QString &entry : m_entries) {
        note(progress().isCancelled() ? Result::Cancelled : makeShortcut(diskBytes(entry), &target));
        if (isHopeless())
            return;
        progress().add(Progress::unitsPerNode);
    }
}

Result ShortcutOperation::makeShortcut(const QByteArray &path, DiskPlace *target)
{
    DiskPlace source;
    Result result = DiskPlace::open(path, &source);
    struct stat facts = {};
    if (result != Result::Success)
        return result;
    if (fstatat(source.directory.get(), source.name.constData(), &facts, AT_SYMLINK_NOFOLLOW) != 0)
        return resultOfError(errno);
    const QByteArray directory = m_destination.isEmpty() ? source.path : diskBytes(m_destination);
    result = openTarget(pathIn(directory, source.name), target);
    if (result != Result::Success)
        return result;
    struct stat own = {};
    struct stat other = {};
    const bool isBeside = fstat(source.directory.get(), &own) == 0 && fstat(target->directory.get(), &other) == 0
        && own.st_dev == other.st_dev && own.st_ino == other.st_ino;
    const bool isDir = S_ISDIR(facts.st_mode);
    const QByteArray goal = source.fullPath();
    result = makeUnderFreeName(
        isBeside ? FreeName::forShortcutTo(source.name, isDir) : FreeName::like(source.name, isDir), &target->name,
        [&](const char *name) { return symlinkat(goal.constData(), target->directory.get(), name); });
    if (result == Result::Success)
        addMade(target->fullPath());
    return result;
}

TitledShortcutOperation::TitledShortcutOperation(const QString &stamp, const QString &url, const QString &title,
                                                 const QString &destination)
    : Operation(stamp, destination)
    , m_url(url)
    , m_title(title)
    , m_destination(destination)
{
}

void TitledShortcutOperation::run()
{
    const QString title = m_title.simplified().isEmpty() ? m_url : m_title;
    if (m_url.isEmpty()) {
        note(Result::NotFound);
        return;
    }
    DiskPlace place;
    if (!note(openTarget(pathIn(diskBytes(m_destination), fileNameOf(title)), &place)))
        return;
    const QByteArray content = "[Desktop Entry]\nVersion=1.0\nType=Link\nName=" + escaped(title)
        + "\nURL=" + escaped(m_url) + "\nIcon=text-html\n";
    if (note(makeFile(&place, FreeName::like(place.name, false), newFile,
                      [&content](int file) { return writeAll(file, content); })))
        addMade(place.fullPath());
}
