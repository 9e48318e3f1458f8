// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "testtree.h"

/// An application in the user's own directory of applications, whose program notes each start: the working directory,
/// the startup id and the activation token, and each argument in angle brackets, a line each.
class TestApplication
{
public:
    /// @param keys more lines of the desktop entry; "@" in them stands for the program
    TestApplication(TestTree *tree, const QByteArray &name,
                    const QByteArray &keys = "Exec=@ %F\nMimeType=text/plain;\n");

    /// Makes only such a program, "name" in the tree.
    static void addProgram(TestTree *tree, const QByteArray &name);
    static QByteArray starts(const TestTree &tree, const QByteArray &name); ///< of such a program

    QString desktopFile() const { return m_desktopFile; }
    QByteArray starts() const { return starts(*m_tree, m_name); } ///< what was noted up to now
    QByteArray takeStart();                                       ///< waits for a start, and forgets it

private:
    TestTree *const m_tree;
    const QByteArray m_name;
    QString m_desktopFile;
};
