// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QApplication>

#include <memory>

/// The application object of a program that the bus may start with no display, or one that is gone, and no locale: it
/// then runs without windows. Like every QApplication it keeps its arguments by reference.
class GuiHost
{
public:
    GuiHost(int &argc, char **argv, const QString &name);

    static bool hasDisplay(); ///< whether anybody could see a window; ask when the application object is there

private:
    std::unique_ptr<QApplication> m_application;
};
