// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "newentry.h"

#include <veskplatform/vfs.h>

using namespace VeskFM;

namespace
{

/// Travels to the services by its path, which is all they need of something that does not exist yet.
class NewEntryData : public EntryData
{
public:
    explicit NewEntryData(const QString &path)
        : m_path(path)
    {
    }
    QString path() const override { return m_path; }
    int type() const override { return Entry::File; }
    bool is(EntryTrait) const override { return false; }

private:
    const QString m_path;
};

} // namespace

Entry newEntry(const Entry &directory, const QString &name)
{
    QString path = directory.isPlace() ? directory.localPath() : directory.path();
    if (!path.startsWith(QLatin1Char('/')))
        return {};
    if (!path.endsWith(QLatin1Char('/')))
        path += QLatin1Char('/');
    return Entry(new NewEntryData(path + name));
}
