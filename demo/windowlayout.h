// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QSettings>

class MainWindow;
class QSplitter;

/// How the windows of this program look, over its runs: a file of its own, apart from what all file managers share.
class WindowLayout
{
public:
    WindowLayout();

    void save(const MainWindow &window, const QSplitter &content, const QSplitter &panel);
    void restore(MainWindow *window, QSplitter *content, QSplitter *panel);

private:
    QSettings m_file;
};
