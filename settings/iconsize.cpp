// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/iconsize.h>

#include <QCoreApplication>
#include <QDataStream>

#include <algorithm>
#include <cstdlib>
#include <iterator>

namespace VeskFM
{

namespace
{

const char *const names[IconSize::nSizes] = {
    QT_TRANSLATE_NOOP("IconSize", "Tiny"),       QT_TRANSLATE_NOOP("IconSize", "Small"),
    QT_TRANSLATE_NOOP("IconSize", "Medium"),     QT_TRANSLATE_NOOP("IconSize", "Large"),
    QT_TRANSLATE_NOOP("IconSize", "Very Large"), QT_TRANSLATE_NOOP("IconSize", "Huge"),
};

} // namespace

const int IconSize::sizes[nSizes] = {Tiny, Small, Medium, Large, VeryLarge, Huge};

IconSize::IconSize(Size size)
    : m_pixels(size)
{
}

IconSize::IconSize(int pixels)
{
    const int wanted = qBound(int(Tiny), pixels, int(Huge)); // no overflow in the differences
    m_pixels = *std::min_element(std::begin(sizes), std::end(sizes),
                                 [wanted](int a, int b) { return std::abs(a - wanted) < std::abs(b - wanted); });
}

bool IconSize::canBeIncreased() const
{
    return m_pixels != Huge;
}

bool IconSize::canBeDecreased() const
{
    return m_pixels != Tiny;
}

int IconSize::sizeIndex() const
{
    const int *const found = std::find(std::begin(sizes), std::end(sizes), m_pixels);
    return found == std::end(sizes) ? -1 : int(found - sizes);
}

int IconSize::increase()
{
    return step(+1);
}

int IconSize::decrease()
{
    return step(-1);
}

int IconSize::step(int direction)
{
    const int index = sizeIndex();
    const int target = index + direction;
    if (index < 0 || target < 0 || target >= nSizes)
        return 0;
    return m_pixels = sizes[target];
}

int IconSize::toInt() const
{
    return m_pixels;
}

QString IconSize::nameForIndex(int index)
{
    return index < 0 || index >= nSizes ? QString() : QCoreApplication::translate("IconSize", names[index]);
}

QString IconSize::name() const
{
    return nameForIndex(sizeIndex());
}

QDataStream &operator<<(QDataStream &stream, const IconSize &size)
{
    return stream << qint32(size.toInt());
}

QDataStream &operator>>(QDataStream &stream, IconSize &size)
{
    qint32 pixels = 0;
    stream >> pixels;
    size = IconSize(int(pixels));
    return stream;
}

} // namespace VeskFM
