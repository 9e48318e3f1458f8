// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QMetaType>
#include <QString>

class QDataStream;

namespace VeskFM
{

/// The icon size of a view, in pixels: one of six standard sizes. A plain value, free to copy between threads.
class VESKFM_EXPORT IconSize
{
public:
    enum Size { Tiny = 16, Small = 22, Medium = 32, Large = 48, VeryLarge = 64, Huge = 128 };
    static constexpr int nSizes = 6;
    static const int sizes[nSizes]; ///< pixels, ascending

    IconSize() = default;
    IconSize(Size size);  ///< takes @p size as it is, without snapping
    IconSize(int pixels); ///< snaps to the nearest standard size; a tie takes the smaller (40 gives 32)

    bool canBeIncreased() const;
    bool canBeDecreased() const;
    /// Position in sizes; -1 for a size outside it, which only the Size constructor can make.
    int sizeIndex() const;
    /// Steps up. Returns the new size in pixels, or 0 and no change at the largest.
    int increase();
    /// Steps down. Returns the new size in pixels, or 0 and no change at the smallest.
    int decrease();
    int toInt() const;

    static QString nameForIndex(int index); ///< translated; empty outside the table
    QString name() const;                   ///< translated; empty for a size outside the table

    friend bool operator==(const IconSize &a, const IconSize &b) { return a.m_pixels == b.m_pixels; }
    friend bool operator!=(const IconSize &a, const IconSize &b) { return a.m_pixels != b.m_pixels; }

private:
    int step(int direction);

    int m_pixels = Tiny;
};

/// One 32-bit integer: the pixels. Reading snaps.
VESKFM_EXPORT QDataStream &operator<<(QDataStream &stream, const IconSize &size);
VESKFM_EXPORT QDataStream &operator>>(QDataStream &stream, IconSize &size);

} // namespace VeskFM

Q_DECLARE_METATYPE(VeskFM::IconSize)
