// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QList>
#include <QObject>

class QAction;
class QToolBar;

/// Keeps out of a tool bar what Settings::hiddenToolBarActions() names, and follows that setting.
class ToolBarSetting : public QObject
{
    Q_OBJECT

public:
    explicit ToolBarSetting(QToolBar *bar); ///< a complete one, of which this becomes a child

    QList<QAction *> actions() const; ///< what the bar can show: those with a name, hidden or not

private:
    void apply();

    QToolBar *m_bar;            // borrowed
    QList<QAction *> m_actions; // of the complete bar, with separators
};
