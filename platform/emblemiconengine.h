// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QMap>

/// An icon with smaller icons over its corners, composed anew for each size and device pixel ratio. Thread: GUI.
class EmblemIconEngine : public QIconEngine
{
public:
    EmblemIconEngine(const QIcon &base, const QMap<Qt::Corner, QIcon> &emblems);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    QString iconName() const override;
    void addPixmap(const QPixmap &pixmap, QIcon::Mode mode, QIcon::State state) override;
    void addFile(const QString &fileName, const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QIconEngine *clone() const override;
    QString key() const override;
    bool write(QDataStream &out) const override;
    void virtual_hook(int id, void *data) override;

private:
    QIcon m_base;
    QMap<Qt::Corner, QIcon> m_emblems;
};
