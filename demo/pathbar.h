// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>

#include <QLineEdit>

/// Shows where the window is and takes another place: a path, a path relative to the shown one, "~", or a URL.
class PathBar : public QLineEdit
{
    Q_OBJECT

public:
    explicit PathBar(QWidget *parent = nullptr);

    void setDirectory(const VeskFM::Entry &directory);

Q_SIGNALS:
    void directoryEntered(const VeskFM::Entry &directory); ///< exists, and is a directory or a place
    void entryRefused(const QString &message);
    void left();    ///< with Escape
    void focused(); ///< by the user

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;

private:
    void takeText();
    QString enteredPath() const;

    VeskFM::Entry m_directory;
};
