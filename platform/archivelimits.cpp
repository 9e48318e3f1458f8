// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivelimits.h"

namespace VeskFM
{

namespace
{
constexpr struct
{
    const char *name;
    qint64 ArchiveLimits::*value;
} limits[] = {
    {"--entries=", &ArchiveLimits::entries},        {"--depth=", &ArchiveLimits::depth},
    {"--path=", &ArchiveLimits::pathBytes},         {"--text=", &ArchiveLimits::textBytes},
    {"--unpacked=", &ArchiveLimits::unpackedBytes}, {"--memory=", &ArchiveLimits::memoryBytes},
};
} // namespace

QStringList ArchiveLimits::toArguments() const
{
    QStringList arguments;
    for (const auto &limit : limits)
        arguments.append(QLatin1String(limit.name) + QString::number(this->*limit.value));
    return arguments;
}

bool ArchiveLimits::take(const QString &argument)
{
    for (const auto &limit : limits) {
        const QLatin1String name(limit.name);
        bool isNumber = false;
        if (argument.startsWith(name))
            this->*limit.value = argument.mid(name.size()).toLongLong(&isNumber);
        if (isNumber)
            return true;
    }
    return false;
}

} // namespace VeskFM
