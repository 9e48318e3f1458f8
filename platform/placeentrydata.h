// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entry.h>
#include <veskplatform/storageplace.h>

#include <bitset>
#include <initializer_list>
#include <memory>

namespace VeskFM
{

/// What is shown of a place, and may become otherwise while it exists.
struct PlaceFacts
{
    QString name;
    QString localPath; ///< of the directory behind it; empty for a purely virtual one
    std::bitset<64> traits;
    StoragePlace storage; ///< of a storage place

    /// Whether a directory stands behind it follows from @p directory.
    PlaceFacts(const QString &shownName, const QString &directory, std::initializer_list<EntryTrait> kind);
    void set(EntryTrait trait) { traits.set(size_t(trait)); }
    bool operator==(const PlaceFacts &other) const;
    bool operator!=(const PlaceFacts &other) const { return !(*this == other); }
};

/// A place. Its facts are replaced as a whole, so that all who hold an entry of it see how it is now.
///
/// Thread: any.
class PlaceEntryData : public EntryData
{
public:
    PlaceEntryData(const QString &path, const PlaceFacts &facts);

    std::shared_ptr<const PlaceFacts> facts() const;
    void setFacts(const PlaceFacts &facts);

    QString path() const override;
    int type() const override;
    bool is(EntryTrait trait) const override;
    QString localPath() const override;
    QString fileName() const override;

private:
    const QString m_path;
    std::shared_ptr<const PlaceFacts> m_facts; // replaced atomically
};

} // namespace VeskFM
