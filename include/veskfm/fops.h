// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/fopid.h>
#include <veskfm/newfiletemplate.h>
#include <veskfm/serviceinterfacesingletone.h>
#include <veskplatform/entrylist.h>

#include <QMap>
#include <QObject>
#include <QVariant>

namespace VeskFM
{

/// Client of the file-operation service, which copies, moves, trashes and creates in a process of its own.
///
/// Each operation is sent without waiting and returns its identifier; operationFinished() brings the result, from the
/// event loop, with the record of what was asked. Without a reachable service an identifier is returned all the same and
/// no signal follows.
///
/// Thread: main. Errors: the service's verdict is the code in operationFinished(); 0 is success.
class VESKFM_EXPORT FOps : public QObject,
                           public ServiceInterfaceSingletone
{
    Q_OBJECT

public:
    /// What a record is about. The high bit marks operations that create something.
    enum OperationType {
        Unknown = 0, ///< no record: remove(), cleanTrash(), and the operations of other processes
        Trash = 1,
        Copy = 2,
        Move = 3,
        Rename = 4,
        Restore = 5,
        MakeDir = 0x8001,
        MakeFile = 0x8002,
        MakeShortcut = 0x8003,
        MakeShortcuts = 0x8004,
        MakeFromTemplate = 0x8005,
        MakeTitledShortcut = 0x8006
    };
    Q_ENUM(OperationType)

    static FOps *ptr();
    explicit FOps(QObject *parent = nullptr);
    ~FOps() override;
    void release() override; ///< also stops listening to the service

    FOpId remove(const EntryList &entries, bool flag);
    FOpId trash(const EntryList &entries, bool flag);
    FOpId restore(const EntryList &entries);
    FOpId cleanTrash();
    FOpId copy(const EntryList &sources, const Entry &destination);
    FOpId move(const EntryList &sources, const Entry &destination);
    FOpId rename(const Entry &from, const Entry &to);
    FOpId makeDir(const Entry &entry);
    FOpId makeFile(const Entry &entry);
    FOpId makeShortcut(const Entry &entry);
    FOpId makeShortcuts(const EntryList &sources, const Entry &destination);
    FOpId makeTitledShortcut(const QString &url, const QString &title, const Entry &destination);
    FOpId makeFromTemplate(const Entry &entry, const QString &templatePath);

    /// Asks the service and drops the answer: always 0.
    int operationProgress(const FOpId &id) const;
    QList<NewFileTemplate> fileTemplates() const; ///< the user's, then the system's

    static bool isTrash(const Entry &entry);
    static bool isTrashEntries(const EntryList &entries);
    static bool isEmptyTrash();

Q_SIGNALS:
    /// @param code    the service's result code
    /// @param entries what the service reports, for example what it made
    /// @param args    what was asked: "sources", "destination", "url", "title", "templatePath", as far as they apply
    void operationFinished(const VeskFM::FOpId &id, int code, const VeskFM::EntryList &entries,
                           VeskFM::FOps::OperationType type, const QMap<QString, QVariant> &args);

public Q_SLOTS:
    /// Receives the service's signal.
    void finished(const QString &stamp, int code, const VeskFM::EntryList &entries);

private:
    struct Record
    {
        OperationType type = Unknown;
        QMap<QString, QVariant> args;
    };

    FOpId issue(const char *method, const QVariantList &arguments, OperationType type = Unknown,
                const QMap<QString, QVariant> &args = {});

    static FOps *m_ptr;

    QWeakPointer<QDBusInterface> m_fileOperation; // held by the base
    QMap<FOpId, Record> m_pending;
};

} // namespace VeskFM
