// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "descriptor.h"
#include "result.h"

#include <QByteArray>
#include <QString>

/// The names that something new may take, best first: "base.ext", "base (2).ext", "base (3).ext". Whether a name is
/// taken shows when it is used: nothing is asked before, so no two operations find the same one free.
class FreeName
{
public:
    /// Only this one.
    static FreeName exactly(const QByteArray &name);
    /// This one, then numbered. A directory's name has no extension.
    static FreeName like(const QByteArray &name, bool isDirectory);
    /// For a copy beside its original: "base - copy.ext", then numbered.
    static FreeName forCopyOf(const QByteArray &name, bool isDirectory);
    /// For a link beside what it leads to: "base - shortcut.ext", then numbered.
    static FreeName forShortcutTo(const QByteArray &name, bool isDirectory);

    QByteArray current() const; ///< bytes of the disk; cut to what a file system takes
    bool next();                ///< false when there are no others

private:
    FreeName(const QByteArray &name, bool isDirectory, const QString &addition);
    void splitSuffix();

    bool m_isExact = false;
    bool m_isDirectory = false;
    QByteArray m_base;
    QByteArray m_addition;
    QByteArray m_suffix; // with its dot; split off the base when the first name is taken, which is seldom
    int m_number = 1;
};

/// Renames, and never replaces anything: the node gets the first name of @p name that is free.
/// @param taken          the name it got
/// @param crossesDevices set to whether it failed because the two are on different file systems
/// Errors: Exists when no name is left.
Result renameToFreeName(int fromParent, const QByteArray &from, int toParent, FreeName name, QByteArray *taken,
                        bool *crossesDevices = nullptr);
