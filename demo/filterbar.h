// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QLineEdit>
#include <QTimer>

/// The line in which a name filter is typed. It is there while it is wanted; Escape empties and hides it.
class FilterBar : public QLineEdit
{
    Q_OBJECT

public:
    explicit FilterBar(QWidget *parent = nullptr);

    void dismiss();                              ///< empties and hides it
    void open();                                 ///< shows it and gives it the focus
    void reset(const QString &text = QString()); ///< without an announcement; hidden unless there is a text
    QStringList patterns() const;

Q_SIGNALS:
    void patternsChanged(const QStringList &patterns); ///< once the typing pauses
    void left();                                       ///< with Return, Escape or the down key

protected:
    void keyPressEvent(QKeyEvent *event) override;

private:
    void apply();

    QTimer m_timer; // a filter lists anew: wait until the typing pauses
};
