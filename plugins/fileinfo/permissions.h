// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QStringList>

#include <atomic>

#include <sys/types.h>

namespace VeskFM
{

/// What went wrong with some of many files: the first few, a line each, and how many there are.
struct PermissionErrors
{
    QStringList lines;
    int count = 0;

    void add(const Entry &entry, int error); ///< @p error of errno
};

/// Whose files these are and what everybody may do with them. Where they differ, texts say so.
struct CommonPermissions
{
    mode_t all = 07777; ///< bits that every file has; symbolic links have none and do not count
    mode_t any = 0;     ///< bits that one has at least
    bool canChange = false;
    QString owner;
    QString group;
    QString text; ///< see permissionText()
    PermissionErrors errors;

    /// Looks at the disk. Thread: any.
    static CommonPermissions of(const EntryList &entries);
};

/// Replaces the bits @p changed of the permissions of @p entries by those in @p bits. Symbolic links, and what they lead
/// to, are left alone. Thread: any.
/// @param running turns false to stop
PermissionErrors changePermissions(const EntryList &entries, mode_t changed, mode_t bits,
                                   const std::atomic<bool> *running);

} // namespace VeskFM
