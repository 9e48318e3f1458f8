// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "toolbarsetting.h"

#include <veskfm/settings.h>

#include <QAction>
#include <QToolBar>

using namespace VeskFM;

ToolBarSetting::ToolBarSetting(QToolBar *bar)
    : QObject(bar)
    , m_bar(bar)
    , m_actions(bar->actions())
{
    connect(Settings::ptr(), &Settings::hiddenToolBarActionsChanged, this, &ToolBarSetting::apply);
    apply();
}

QList<QAction *> ToolBarSetting::actions() const
{
    QList<QAction *> named;
    for (QAction *action : m_actions) {
        if (!action->isSeparator() && !action->objectName().isEmpty())
            named += action;
    }
    return named;
}

void ToolBarSetting::apply()
{
    const QStringList hidden = Settings::ptr()->hiddenToolBarActions();
    m_bar->clear();
    for (QAction *action : qAsConst(m_actions)) {
        if (!hidden.contains(action->objectName()) || action->objectName().isEmpty())
            m_bar->addAction(action);
    }
}
