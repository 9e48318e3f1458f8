// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "treescore.h"

#include "figures.h"
#include "generatedforest.h"

#include <QTemporaryDir>
#include <QTextStream>

namespace
{

constexpr int runs = 5;

/// Two branches of directories alone, ten in each.
class Branches
{
public:
    explicit Branches(int size)
        : m_first(m_top.path(), shape, size / 2)
        , m_second(m_top.path(), shape, size - size / 2)
    {
    }
    QString path() const { return m_second.path().isEmpty() ? QString() : m_top.path(); }

private:
    static constexpr ForestShape shape = {0, 10, 5};

    const QTemporaryDir m_top;
    const GeneratedForest m_first;
    const GeneratedForest m_second;
};

} // namespace

bool printTreeScore(int size)
{
    const Branches large(size);
    const Branches small(size / 100);
    const QTemporaryDir top;
    const GeneratedForest wide(top.path(), {0, size / 2, 1}, size / 2);
    if (large.path().isEmpty() || small.path().isEmpty() || wide.path().isEmpty()) {
        QTextStream(stderr) << "Cannot fill a directory below " << QDir::tempPath() << '\n';
        return false;
    }
    Figures smallFigures;
    Figures figures;
    bool good = true;
    for (int run = 0; good && run < runs; ++run) {
        const QTemporaryDir unlisted;
        good = measure(QStringLiteral("nodes"), small.path(), &smallFigures)
            && measure(QStringLiteral("nodes"), large.path(), &figures)
            && measure(QStringLiteral("shownnodes"), large.path(), &figures)
            && measure(QStringLiteral("widenode"), wide.path(), &figures)
            && measure(QStringLiteral("path"), unlisted.path(), &figures);
    }
    if (good)
        QTextStream(stdout) << "{\"bench\":\"tree\",\"nodes\":" << size << ",\"runs\":" << runs
                            << ",\"due\":{\"event\":\"as in the small tree\",\"path_ms\":1},\"large\":"
                            << objectOf(figures) << ",\"small\":" << objectOf(smallFigures) << "}\n";
    return good;
}
