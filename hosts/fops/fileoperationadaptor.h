// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "fileoperationxml.h"
#include "result.h"

#include "common/entrypath.h"

#include <veskfm/vendordomainprefix.h>

#include <QDBusAbstractAdaptor>

class FopsService;

/// The bus interface of the file operations; its description tells what each method does. Every request is answered at
/// once, and its result announced by operationFinished().
class FileOperationAdaptor : public QDBusAbstractAdaptor
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", VESKFM_VENDOR_DOMAIN_PREFIX ".FileManager.FileOperation")
    Q_CLASSINFO("D-Bus Introspection", VESKFM_FILEOPERATION_XML)

public:
    explicit FileOperationAdaptor(FopsService *service);

public Q_SLOTS:
    void remove(const QString &stamp, const EntryPathList &entries, bool goOn);
    void trash(const QString &stamp, const EntryPathList &entries, bool goOn);
    void restore(const QString &stamp, const EntryPathList &entries);
    void cleanTrash(const QString &stamp);
    void copy(const QString &stamp, const EntryPathList &sources, const EntryPath &destination);
    void move(const QString &stamp, const EntryPathList &sources, const EntryPath &destination);
    void rename(const QString &stamp, const EntryPath &from, const EntryPath &to);
    void makeDir(const QString &stamp, const EntryPath &entry);
    void makeFile(const QString &stamp, const EntryPath &entry);
    void makeShortcut(const QString &stamp, const EntryPath &entry);
    void makeShortcuts(const QString &stamp, const EntryPathList &sources, const EntryPath &destination);
    void makeTitledShortcut(const QString &stamp, const QString &url, const QString &title,
                            const EntryPath &destination);
    void makeFromTemplate(const QString &stamp, const EntryPath &entry, const QString &templatePath);
    int operationProgress(const QString &stamp);

Q_SIGNALS:
    void operationFinished(const QString &stamp, int code, const EntryPathList &entries);

private:
    template <typename Kind, typename... Arguments> void start(Arguments &&...arguments);

    FopsService *const m_service; // the parent
};
