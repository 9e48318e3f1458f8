// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "generatedtree.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

NameGenerator::NameGenerator(unsigned int seed)
    : m_random(seed)
{
}

QByteArray NameGenerator::next(int serial)
{
    static const char *const words[] = {"Report", "photo",  "IMG",  "draft", "Übersicht", "notes",
                                        "track",  "Backup", "файл", "scan",  "café",      "data"};
    static const char *const endings[] = {".txt", ".jpg", ".PDF", ".cpp", "", ".tar.gz", ".mp3", ".odt"};
    QByteArray name;
    if (number(25) == 0)
        name += '.';
    name += words[number(std::size(words))];
    name += number(2) ? " " : "_";
    name += QByteArray::number(number(1000));
    name += '-';
    name += QByteArray::number(serial);
    name += endings[number(std::size(endings))];
    return name;
}

unsigned int NameGenerator::number(unsigned int limit)
{
    return static_cast<unsigned int>(m_random()) % limit; // the distributions of <random> differ between libraries
}

GeneratedTree::GeneratedTree(const QString &parent, int size)
{
    QByteArray path = QFile::encodeName(parent) + "/veskfm-tree-XXXXXX";
    if (!mkdtemp(path.data()))
        return;
    m_path = QFile::decodeName(path);
    if (!fill(size)) {
        QDir(m_path).removeRecursively();
        m_path.clear();
    }
}

GeneratedTree::~GeneratedTree()
{
    if (!m_path.isEmpty())
        QDir(m_path).removeRecursively();
}

bool GeneratedTree::fill(int size) const
{
    constexpr unsigned int seed = 20260101;
    constexpr unsigned int largestFile = 1 << 24; // bytes; the files are sparse
    const int directory = open(QFile::encodeName(m_path).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    NameGenerator names(seed);
    bool good = directory >= 0;
    for (int i = 0; good && i < size; ++i) {
        const QByteArray name = names.next(i);
        if (names.number(20) == 0) {
            good = mkdirat(directory, name.constData(), 0755) == 0;
        } else {
            const int file = openat(directory, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
            good = file >= 0 && ftruncate(file, names.number(largestFile)) == 0;
            close(file);
        }
    }
    close(directory);
    return good;
}
