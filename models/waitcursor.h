// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QCursor>
#include <QGuiApplication>

namespace VeskFM
{

/// Shows the wait cursor while it lives. Without a GUI application it does nothing.
class WaitCursor
{
public:
    WaitCursor()
        : m_shown(qobject_cast<QGuiApplication *>(QCoreApplication::instance()))
    {
        if (m_shown)
            QGuiApplication::setOverrideCursor(QCursor(Qt::WaitCursor));
    }
    ~WaitCursor()
    {
        if (m_shown)
            QGuiApplication::restoreOverrideCursor();
    }
    Q_DISABLE_COPY_MOVE(WaitCursor)

private:
    const bool m_shown;
};

} // namespace VeskFM
