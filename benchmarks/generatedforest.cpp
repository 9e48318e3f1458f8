// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "generatedforest.h"

#include <QDir>
#include <QFile>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace
{
constexpr unsigned int seed = 20260102;
}

GeneratedForest::GeneratedForest(const QString &parent, const ForestShape &shape, int size)
    : m_shape(shape)
    , m_names(seed)
    , m_left(size)
{
    QByteArray path = QFile::encodeName(parent) + "/veskfm-forest-XXXXXX";
    if (!mkdtemp(path.data()))
        return;
    m_path = QFile::decodeName(path);
    const int top = open(path.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (top < 0 || !fill(top, 0) || m_left > 0) {
        QDir(m_path).removeRecursively();
        m_path.clear();
    }
    close(top);
}

GeneratedForest::~GeneratedForest()
{
    if (!m_path.isEmpty())
        QDir(m_path).removeRecursively();
}

bool GeneratedForest::fill(int directory, int level)
{
    for (int i = 0; i < m_shape.files && m_left > 0; ++i) {
        const QByteArray name = m_names.next(m_left--);
        const int file = openat(directory, name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0644);
        if (file < 0)
            return false;
        close(file);
    }
    for (int i = 0; level < m_shape.depth && i < m_shape.directories && m_left > 0; ++i) {
        if (!fillChild(directory, level))
            return false;
    }
    return true;
}

bool GeneratedForest::fillChild(int directory, int level)
{
    const QByteArray name = m_names.next(m_left--);
    const int child = mkdirat(directory, name.constData(), 0755) == 0
        ? openat(directory, name.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)
        : -1;
    const bool good = child >= 0 && fill(child, level + 1);
    close(child);
    return good;
}
