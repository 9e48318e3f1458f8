// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskplatform/entrywatcher.h>

namespace VeskFM
{

EntryWatcher::EntryWatcher(QObject *parent)
    : QObject(parent)
{
    registerEntryMetaTypes(); // its signals are connected queued
}

EntryWatcher::~EntryWatcher() = default;

} // namespace VeskFM
