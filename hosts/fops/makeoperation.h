// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include "freename.h"
#include "operation.h"

/// Makes an empty directory or file, or a file from a template.
class MakeOperation : public Operation
{
public:
    enum Kind { Directory, EmptyFile, FromTemplate };
    /// @param entry        what to make; for a template also the directory to make it in
    /// @param templatePath for FromTemplate
    MakeOperation(Kind kind, const QString &stamp, const QString &entry, const QString &templatePath = {});

protected:
    void run() override;

private:
    Result makeFromTemplate(DiskPlace *place);

    const Kind m_kind;
    const QString m_entry;
    const QString m_templatePath;
};

/// Makes symbolic links to entries.
class ShortcutOperation : public Operation
{
public:
    /// @param destination a directory; empty for the one of each entry
    ShortcutOperation(const QString &stamp, const QStringList &entries, const QString &destination);

protected:
    void run() override;

private:
    Result makeShortcut(const QByteArray &path, DiskPlace *target);

    const QStringList m_entries;
    const QString m_destination;
};

/// Makes a desktop entry that leads to a URL.
class TitledShortcutOperation : public Operation
{
public:
    TitledShortcutOperation(const QString &stamp, const QString &url, const QString &title, const QString &destination);

protected:
    void run() override;

private:
    const QString m_url;
    const QString m_title;
    const QString m_destination;
};
