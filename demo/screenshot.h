// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QObject>
#include <QString>
#include <QTimer>

class MainWindow;

/// Saves a picture of a window once the rows that it shows are complete, with their icons and thumbnails.
class Screenshot : public QObject
{
    Q_OBJECT

public:
    /// Waits in the event loop; @p window must outlive it.
    Screenshot(MainWindow *window, const QString &fileName, QObject *parent = nullptr);

Q_SIGNALS:
    void finished(const QString &problem); ///< empty when the file has been written

private:
    void takeWhenComplete();
    void take();

    MainWindow *m_window; // borrowed
    QString m_fileName;
    QTimer m_deadline; // a thumbnail on a sleeping disk must not keep the program for ever
};
