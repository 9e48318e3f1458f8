// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "entryicons_p.h"

#include <QExplicitlySharedDataPointer>
#include <QSharedData>

namespace VeskFM
{

struct EntryBaseState;
using EntryBaseStatePtr = QExplicitlySharedDataPointer<const EntryBaseState>;

/// What an EntryBasePropertySet knows of its entry. Never changed once made, so that a refinement replaces it as a whole;
/// sets of entries that look alike share one.
///
/// Thread: any, for all of it.
struct EntryBaseState : public QSharedData
{
    QString displayName; ///< empty: the entry's own name
    QString toolTip;     ///< empty: the display name
    QString mimeType;    ///< empty until it is known
    IconRecipe icon;

    static EntryBaseStatePtr empty();
    static EntryBaseStatePtr prepared(const Entry &entry);
    /// The state that follows @p before once the disk has been looked at; null when nothing is to be changed.
    static EntryBaseStatePtr refined(const EntryBaseState &before, const Entry &entry, bool presentationUpdate);
};

/// Remembers how dense the screens are, for the thumbnails that the pool makes. Thread: GUI.
void noteDevicePixelRatio();

} // namespace VeskFM
