// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "changer.h"

#include "generatedtree.h"

#include <QFile>
#include <QTextStream>

#include <ctime>
#include <fcntl.h>
#include <unistd.h>

namespace
{

bool write(int directory, const QByteArray &name, int size)
{
    const int file = openat(directory, name.constData(), O_WRONLY | O_TRUNC | O_CLOEXEC);
    const bool good = file >= 0 && ::write(file, QByteArray(size, 'x').constData(), static_cast<size_t>(size)) == size;
    close(file);
    return good;
}

bool create(int directory, const QByteArray &name)
{
    const int file = openat(directory, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
    close(file);
    return file >= 0;
}

} // namespace

QByteArrayList Changer::fileNames()
{
    constexpr unsigned int seed = 5;
    NameGenerator generator(seed);
    QByteArrayList names;
    for (int i = 0; i < fileCount; ++i)
        names.append(generator.next(i) + " new");
    return names;
}

int Changer::fileSize(int file)
{
    return file % 100 + 1;
}

int Changer::run(const QString &change, const QString &directory)
{
    const int descriptor = open(QFile::encodeName(directory).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    const QByteArrayList names = fileNames();
    bool good = descriptor >= 0;
    for (int i = 0; good && i < fileCount; ++i) {
        if (change == QLatin1String("create"))
            good = create(descriptor, names.at(i));
        else if (change == QLatin1String("write"))
            good = write(descriptor, names.at(i), fileSize(i));
        else
            good = unlinkat(descriptor, names.at(i).constData(), 0) == 0;
    }
    QTextStream(stdout) << nowNs();
    close(descriptor);
    return good ? 0 : 1;
}

qint64 Changer::nowNs()
{
    timespec now;
    clock_gettime(CLOCK_MONOTONIC, &now);
    return qint64(now.tv_sec) * 1000000000 + now.tv_nsec;
}
