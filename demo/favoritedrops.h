// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>
#include <QRect>

class PanelTree;
class QDropEvent;
class QMimeData;
class QRubberBand;

/// Whether a drag carries a favorite itself, not the directory it leads to.
bool isFavoriteDrag(const QMimeData *data);
/// Drags a favorite from @p places: to another position, or out, which removes it. Returns when it has been dropped.
void dragFavorite(PanelTree *places, const VeskFM::Entry &favorite);

/// Adds directories that are dropped between the favorites of a panel, moves favorites, and removes those that are dropped
/// elsewhere in the window. What is dropped on the middle of a favorite goes into its directory, and is not for us.
class FavoriteDrops : public QObject
{
    Q_OBJECT

public:
    /// Becomes a child of @p places. Make it after who else takes drops there: it has to be asked first.
    FavoriteDrops(PanelTree *places, QWidget *window);

Q_SIGNALS:
    void failed(const QString &errorText);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    struct Gap
    {
        bool exists = false;
        int position = -1; // among the favorites; -1 for the end
        QRect mark;
    };
    Gap gapAt(const QDropEvent &event) const;
    bool onPanelEvent(QEvent *event);
    bool onWindowEvent(QEvent *event);
    void drop(const QDropEvent &event, int position);

    PanelTree *m_places;
    QWidget *m_window;
    QRubberBand *m_mark;
};
