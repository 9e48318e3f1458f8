// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "openservice.h"

#include "applicationdialog.h"

using namespace VeskFM;

void OpenService::open(const EntryList &entries, const QVariantMap &options)
{
    recallUnloader();
    const LaunchContext context(options);
    EntryList existing;
    for (const Entry &entry : entries) {
        if (!entry.isNull())
            existing.append(entry);
    }
    if (existing.isEmpty())
        return;
    if (options.value(QStringLiteral("dialog")).toBool()) {
        showDialog(existing, context);
        return;
    }
    const EntryList left = openWithDefaults(existing, context);
    if (!left.isEmpty())
        showDialog(left, context); // nothing is set for them: ask
}

void OpenService::showAssociationDialog()
{
    showDialog({}, LaunchContext());
}

void OpenService::showDialog(const EntryList &entries, const LaunchContext &context)
{
    lockUnloader();
    auto *const dialog = new ApplicationDialog(entries, context);
    connect(dialog, &QObject::destroyed, this, [this] { unlockUnloader(); });
}

void OpenService::release() {}
