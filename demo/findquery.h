// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrymatchvalidator.h>
#include <veskplatform/entry.h>

#include <QStringList>

#include <memory>
#include <vector>

/// What is looked for, and where.
struct FindQuery
{
    VeskFM::Entry start;                              ///< a directory or a place
    QStringList namePatterns = {QStringLiteral("*")}; ///< wildcards; one of them has to match the name, in any case
    bool subdirectories = true;
    bool hiddenEntries = false;
    bool archives = false;
    std::vector<std::unique_ptr<VeskFM::EntryMatchValidator>> validators; ///< all of them have to match
};
