// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>

#include <QFlags>
#include <QList>
#include <QStringList>

#include <memory>

namespace VeskFM
{

class Entry;
class EntryMatchValidator;
class PropertyEnumerator;

/// Decides which entries of a listed directory become rows of a model.
///
/// Setters only note that something changed; flushChanges() reports it once, so that a model lists anew only for a
/// change that matters.
///
/// Thread: that of the model it belongs to.
class VESKFM_EXPORT ModelFilter
{
public:
    enum EntryFilter {
        DirsOnly = 1,        ///< no files
        ExecutablesOnly = 2, ///< no files but executable ones
        AllEntries = 4,      ///< tests nothing; the default
        HiddenEntries = 8    ///< hidden entries and desktop files that ask not to be displayed are accepted too
    };
    Q_DECLARE_FLAGS(EntryFilters, EntryFilter)

    ModelFilter();
    virtual ~ModelFilter(); ///< deletes the validators

    EntryFilters entryFilters() const;
    void setEntryFilters(EntryFilters filters); ///< 0 is ignored; anything else replaces all flags

    bool showHiddenEntries() const;
    void setShowHiddenEntries(bool show);

    /// Wildcard patterns; a name passes when one of them matches it as a whole, in any case. "*" alone at first.
    QStringList nameFilters() const;
    /// An empty list refuses every name.
    void setNameFilters(const QStringList &patterns);

    /// Whether directories and places pass whatever they are called; true at first.
    bool nameFiltersForFilesOnly() const;
    void setNameFiltersForFilesOnly(bool filesOnly);

    /// Replaces the further tests, which are asked in list order after the built-in ones. Takes ownership.
    void setValidators(const QList<EntryMatchValidator *> &validators);

    /// Whose displayed names the patterns are held against; borrowed. Without one it is Entry::fileName().
    void setPropertyEnumerator(PropertyEnumerator *enumerator);

    bool flushChanges(); ///< whether something changed since the last call

    bool isAllowedEntry(const Entry &entry) const;

private:
    Q_DISABLE_COPY(ModelFilter)
    class Private;

    const std::unique_ptr<Private> d;
};

Q_DECLARE_OPERATORS_FOR_FLAGS(ModelFilter::EntryFilters)

} // namespace VeskFM
