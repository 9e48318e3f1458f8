// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "emblemiconengine.h"

#include <QDataStream>
#include <QPainter>

namespace
{

// A third to a half of the icon, and of a size that themes draw emblems in, so that it comes out sharp.
int emblemSide(const QSize &icon)
{
    const int larger = qMax(icon.width(), icon.height());
    const int smaller = qMin(icon.width(), icon.height()); // thumbnails may be flat
    for (const int drawn : {8, 16, 22, 24, 32, 48, 64, 96, 128, 256}) {
        if (drawn * 3 >= larger)
            return qMin(qMin(drawn, larger / 2), smaller);
    }
    return qMin(larger / 3, smaller);
}

Qt::Alignment alignment(Qt::Corner corner)
{
    const bool left = corner == Qt::TopLeftCorner || corner == Qt::BottomLeftCorner;
    const bool top = corner == Qt::TopLeftCorner || corner == Qt::TopRightCorner;
    return (left ? Qt::AlignLeft : Qt::AlignRight) | (top ? Qt::AlignTop : Qt::AlignBottom);
}

QRect emblemRect(const QSize &icon, Qt::Corner corner)
{
    QRect rect(QPoint(0, 0), QSize(1, 1) * emblemSide(icon));
    const QRect whole(QPoint(0, 0), icon);
    if (alignment(corner) & Qt::AlignRight)
        rect.moveRight(whole.right());
    if (alignment(corner) & Qt::AlignBottom)
        rect.moveBottom(whole.bottom());
    return rect;
}

} // namespace

EmblemIconEngine::EmblemIconEngine(const QIcon &base, const QMap<Qt::Corner, QIcon> &emblems)
    : m_base(base)
    , m_emblems(emblems)
{
}

void EmblemIconEngine::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
}

// In device pixels. The parts are painted, not asked for as pixmaps: QIcon::pixmap() would enlarge them once more where
// the application uses high-resolution pixmaps.
QPixmap EmblemIconEngine::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    const QSize actual = actualSize(size, mode, state);
    if (actual.isEmpty())
        return {};
    QPixmap canvas(actual);
    canvas.fill(Qt::transparent);
    QPainter painter(&canvas);
    m_base.paint(&painter, canvas.rect(), Qt::AlignCenter, mode, state);
    for (auto emblem = m_emblems.cbegin(); emblem != m_emblems.cend(); ++emblem)
        emblem->paint(&painter, emblemRect(actual, emblem.key()), alignment(emblem.key()), mode, state);
    return canvas;
}

QSize EmblemIconEngine::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return size.isEmpty() ? QSize() : m_base.actualSize(size, mode, state);
}

QList<QSize> EmblemIconEngine::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    return m_base.availableSizes(mode, state);
}

QString EmblemIconEngine::iconName() const
{
    return m_base.name();
}

void EmblemIconEngine::addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state)
{
    m_base.addPixmap(pixmap, mode, state);
}

void EmblemIconEngine::addFile(const QString &fileName, const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    m_base.addFile(fileName, size, mode, state);
}

QIconEngine *EmblemIconEngine::clone() const
{
    return new EmblemIconEngine(*this);
}

// A reader knows no engine of ours, so the icon is written flat, as the toolkit writes an icon made of pixmaps.
QString EmblemIconEngine::key() const
{
    return QStringLiteral("QPixmapIconEngine");
}

bool EmblemIconEngine::write(QDataStream &out) const
{
    const QList<QSize> sizes = availableSizes(QIcon::Normal, QIcon::Off);
    EmblemIconEngine composer(*this);
    out << int(sizes.size());
    for (const QSize &size : sizes) {
        const QPixmap composed = composer.pixmap(size, QIcon::Normal, QIcon::Off);
        out << composed << QString() << composed.size() << uint(QIcon::Normal) << uint(QIcon::Off);
    }
    return out.status() == QDataStream::Ok;
}

void EmblemIconEngine::virtual_hook(int id, void *data)
{
    if (id == IsNullHook)
        *static_cast<bool *>(data) = m_base.isNull();
    else
        QIconEngine::virtual_hook(id, data);
}
