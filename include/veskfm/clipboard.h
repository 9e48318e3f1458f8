// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/entrylist.h>

#include <QList>
#include <QStringList>
#include <QUrl>

#include <memory>
#include <set>

class QClipboard;
class QMimeData;

namespace VeskFM
{

class ClipboardProcessor;

/// Entries on the system clipboard and in drag objects, in the formats that other programs understand, together with the
/// operation that the user chose.
///
/// Archives that lie behind the entries stay mounted until the clipboard's contents change.
///
/// Thread: GUI. Errors: none are reported; a missing clipboard, null data and unknown formats give empty results.
class VESKFM_EXPORT Clipboard
{
public:
    enum Operation {
        NoOperation = 0, ///< the plain URI list alone
        Drag = 1,
        Copy = 2,
        Cut = 3 ///< moved when pasted
    };

    /// The instance, made on first use. The library never deletes it; a test may, and the next call makes a new one.
    static Clipboard *ptr();

    Clipboard();
    ~Clipboard();
    Clipboard(const Clipboard &) = delete;
    Clipboard &operator=(const Clipboard &) = delete;

    static QClipboard *clipboard(); ///< the application's; null without a GUI application
    /// The current data in clipboard mode, owned by the clipboard; null for a null clipboard.
    static const QMimeData *clipboardMimeData(const QClipboard *clipboard);
    static void clear(); ///< empties the clipboard

    /// Adds formats behind those already known; null is ignored.
    /// @param processor stays with the clipboard, which never deletes it
    void registerProcessor(ClipboardProcessor *processor);

    void setEntries(const EntryList &entries, Operation operation);
    EntryList entries(Operation operation) const; ///< empty when the clipboard holds another operation's entries

    QMimeData *dragMimeData(const EntryList &entries) const; ///< for a drag; owned by the caller
    EntryList dropEntries(const QMimeData *data) const;

    /// The URLs that @p data holds for @p operation. The first processor that knows the data decides.
    QList<QUrl> urlsFor(Operation operation, const QMimeData *data) const;
    /// The supported formats that occur in the names of the data's formats.
    QStringList actualMimeTypes(const QMimeData *data) const;
    /// The archive mounts that the current contents keep mounted.
    std::set<QString> archiveMountPoints() const;

    /// @p entry as it would come back from the clipboard, so that the two compare equal.
    static Entry compatibleEntry(const Entry &entry);

private:
    QList<ClipboardProcessor *> m_processors; // registered for the life of the process
    QStringList m_supportedMimeTypes;
    std::shared_ptr<std::set<QString>> m_archiveMounts; // one reference each; shared with what releases them
};

} // namespace VeskFM
