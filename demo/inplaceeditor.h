// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLineEdit>

class QAbstractItemView;

/// A line over the name of a row, to give it another one. It goes with Return, Escape or the focus.
class InPlaceEditor : public QLineEdit
{
    Q_OBJECT

public:
    /// Opens over @p place in the viewport, with the part before the suffix selected. Deletes itself.
    InPlaceEditor(QAbstractItemView *view, const QRect &place, const QString &name);

Q_SIGNALS:
    void accepted(const QString &name); ///< another one than before, not empty

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void finish(bool accept);

    const QString m_former;
    bool m_finished = false;
};
