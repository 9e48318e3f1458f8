// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "generatedtree.h"

/// What each directory of a forest holds.
struct ForestShape
{
    int files;       ///< in each directory
    int directories; ///< in each directory above the lowest level
    int depth;       ///< levels below the top

    static ForestShape wide() { return {1000, 1000, 1}; } ///< few large directories
    static ForestShape deep() { return {6, 3, 12}; }      ///< many small ones
};

/// A directory of generated directories on several levels; removed by the destructor with all that is in it.
class GeneratedForest
{
public:
    /// Fills a new directory below @p parent, depth first, until it holds @p size entries on all levels together.
    /// path() is empty when that failed.
    GeneratedForest(const QString &parent, const ForestShape &shape, int size);
    ~GeneratedForest();

    QString path() const { return m_path; }

private:
    Q_DISABLE_COPY(GeneratedForest)

    bool fill(int directory, int level);
    bool fillChild(int directory, int level);

    const ForestShape m_shape;
    QString m_path;
    NameGenerator m_names;
    int m_left; // entries still to be made
};
