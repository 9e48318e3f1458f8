// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>

class MainWindow;
class ToolBarSetting;

/// The dialogs of a window: properties, find and settings.
class WindowDialogs : public QObject
{
    Q_OBJECT

public:
    explicit WindowDialogs(MainWindow *window); ///< becomes a child of @p window, and does what its actions stand for

private:
    void showProperties();
    void find();
    void showSettings();
    void open(const VeskFM::Entry &entry);

    MainWindow *m_window; // borrowed
    ToolBarSetting *m_toolBar;
};
