// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrypropertyset.h>

#include <QExplicitlySharedDataPointer>
#include <QIcon>

#include <atomic>
#include <memory>

namespace VeskFM
{

struct EntryBaseState;

/// The two built-in columns of an entry: 0 "Name", with the icon and the tool tip, and 1 "Type".
///
/// To prepare is to name the entry and to choose an icon by its kind: for a plain file "unknown", for a directory
/// "folder"; places, desktop entries and the children of the home directory get their own. To refine is to look at the
/// disk: MIME type by content, thumbnail, ".directory" file, dead links.
///
/// Texts and icons follow EntryViewParameters. An icon is looked up in the theme when value() is asked for it.
///
/// Thread: as EntryPropertySet says. refineData() may overlap with every other call on the same object; when prepare()
/// comes in the middle of it, the refinement starts again for the new state.
/// Errors: none; what cannot be read keeps what preparation gave it.
class VESKFM_EXPORT EntryBasePropertySet : public EntryPropertySet
{
public:
    EntryBasePropertySet();
    ~EntryBasePropertySet() override;

    /// The header of a column: the translated title (role 0), the tool tip (role 3), the internal name "Name" or "Type"
    /// (role 256). Invalid for anything else.
    static QVariant headerData(int index, int role);

    void prepare(const Entry &entry) override;
    QVariant value(const Entry &entry, int index, int role) const override;
    bool canRefineData(const Entry &entry) const override; ///< always
    void refineData(const Entry &entry) override;
    /// Refines again, on the calling thread, when @p refined; directories read their ".directory" file again.
    void updatePresentation(const Entry &entry, bool refined) override;

private:
    using StatePtr = QExplicitlySharedDataPointer<const EntryBaseState>;
    struct MadeIcon;

    StatePtr state(quint32 *generation = nullptr) const;
    void replaceState(StatePtr next);
    void refine(const Entry &entry, bool presentationUpdate);
    QString displayName(const Entry &entry) const;
    QIcon icon() const;

    // m_state is never null; sets share it where nothing in it belongs to one entry alone.
    StatePtr m_state;
    mutable std::unique_ptr<MadeIcon> m_madeIcon; // owner's thread; only for icons that belong to this entry alone
    quint32 m_generation = 0;                     // counts the calls that make refinements under way outdated
    mutable std::atomic_flag m_lock = ATOMIC_FLAG_INIT; // guards m_state and m_generation, held for instructions only
};

} // namespace VeskFM
