// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "inplaceeditor.h"

#include <QAbstractItemView>
#include <QKeyEvent>
#include <QMimeDatabase>

InPlaceEditor::InPlaceEditor(QAbstractItemView *view, const QRect &place, const QString &name)
    : QLineEdit(name, view->viewport())
    , m_former(name)
{
    const int height = sizeHint().height();
    setGeometry(place.left(), place.center().y() - height / 2, place.width(), height);
    setObjectName(QStringLiteral("nameEditor"));
    setAutoFillBackground(true);
    const QString suffix = QMimeDatabase().suffixForFileName(name);
    setSelection(0, suffix.isEmpty() ? name.size() : name.size() - suffix.size() - 1);
    connect(view->model(), &QAbstractItemModel::modelAboutToBeReset, this, [this] { finish(false); });
    show();
    setFocus();
}

void InPlaceEditor::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        finish(true);
        break;
    case Qt::Key_Escape:
        finish(false);
        break;
    default:
        QLineEdit::keyPressEvent(event);
    }
}

void InPlaceEditor::focusOutEvent(QFocusEvent *event)
{
    QLineEdit::focusOutEvent(event);
    if (event->reason() != Qt::PopupFocusReason) // its own menu
        finish(true);
}

void InPlaceEditor::finish(bool accept)
{
    if (m_finished)
        return;
    m_finished = true;
    if (accept && !text().isEmpty() && text() != m_former)
        Q_EMIT accepted(text());
    hide();
    deleteLater();
    if (parentWidget() && parentWidget()->parentWidget())
        parentWidget()->parentWidget()->setFocus();
}
