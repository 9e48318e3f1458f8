// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "windowlayout.h"

#include "mainwindow.h"
#include "pane.h"
#include "windowactions.h"

#include <veskplatform/veskdirs.h>

#include <QAction>
#include <QSplitter>

using namespace VeskFM;

namespace
{
const QString geometryKey = QStringLiteral("geometry");
const QString contentKey = QStringLiteral("content");
const QString panelKey = QStringLiteral("panel");
const QString panelShownKey = QStringLiteral("panelShown");
const QString twoPanesKey = QStringLiteral("twoPanes");
const QString modeKey = QStringLiteral("iconView");
const QString tableSizeKey = QStringLiteral("tableIconSize");
const QString iconSizeKey = QStringLiteral("iconViewIconSize");
} // namespace

WindowLayout::WindowLayout()
    : m_file(QString::fromLocal8Bit(GetOrganization()), QStringLiteral("vesk-browser"))
{
}

void WindowLayout::save(const MainWindow &window, const QSplitter &content, const QSplitter &panel)
{
    const EntryViews *const views = window.activePane()->views();
    m_file.setValue(geometryKey, window.saveGeometry());
    m_file.setValue(contentKey, content.saveState());
    m_file.setValue(panelKey, panel.saveState());
    m_file.setValue(panelShownKey, window.actionSet()->sidePanel->isChecked());
    m_file.setValue(twoPanesKey, window.otherPane() != nullptr);
    m_file.setValue(modeKey, views->mode() == EntryViews::Icons);
    m_file.setValue(tableSizeKey, views->entryIconSize(EntryViews::Table).toInt());
    m_file.setValue(iconSizeKey, views->entryIconSize(EntryViews::Icons).toInt());
}

void WindowLayout::restore(MainWindow *window, QSplitter *content, QSplitter *panel)
{
    EntryViews *const views = window->activePane()->views();
    window->restoreGeometry(m_file.value(geometryKey).toByteArray());
    content->restoreState(m_file.value(contentKey).toByteArray());
    panel->restoreState(m_file.value(panelKey).toByteArray());
    window->actionSet()->sidePanel->setChecked(m_file.value(panelShownKey, true).toBool());
    views->setMode(m_file.value(modeKey).toBool() ? EntryViews::Icons : EntryViews::Table);
    for (const auto mode : {EntryViews::Table, EntryViews::Icons}) {
        const QVariant size = m_file.value(mode == EntryViews::Table ? tableSizeKey : iconSizeKey);
        if (size.isValid())
            views->setEntryIconSize(mode, IconSize(size.toInt()));
    }
    window->setTwoPanes(m_file.value(twoPanesKey).toBool());
}
