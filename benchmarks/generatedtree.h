// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QByteArray>
#include <QString>

#include <random>

/// Names as people give them: numbers, mixed case, some with letters outside ASCII, some hidden. The same seed gives
/// the same names on every machine.
class NameGenerator
{
public:
    explicit NameGenerator(unsigned int seed);

    /// @p serial makes the name unique among those of one generator.
    QByteArray next(int serial);
    unsigned int number(unsigned int limit); ///< below @p limit

private:
    std::mt19937 m_random;
};

/// A directory of generated entries, one in twenty a directory; removed by the destructor with all that is in it.
class GeneratedTree
{
public:
    /// Fills a new directory below @p parent with @p size entries; path() is empty when that failed.
    GeneratedTree(const QString &parent, int size);
    ~GeneratedTree();

    QString path() const { return m_path; }

private:
    Q_DISABLE_COPY(GeneratedTree)

    bool fill(int size) const;

    QString m_path;
};
