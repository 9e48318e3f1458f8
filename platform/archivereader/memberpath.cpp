// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "memberpath.h"

namespace VeskFM
{

bool splitMemberPath(const QByteArray &path, QList<QByteArray> *names)
{
    names->clear();
    if (path.startsWith('/') || path.contains('\0'))
        return false;
    const QList<QByteArray> steps = path.split('/');
    for (const QByteArray &step : steps) {
        if (step == "..")
            return false;
        if (!step.isEmpty() && step != ".")
            names->append(step);
    }
    return true;
}

bool staysInside(const QByteArray &link, int depth)
{
    if (link.isEmpty() || link.startsWith('/') || link.contains('\0'))
        return false;
    const QList<QByteArray> steps = link.split('/');
    for (const QByteArray &step : steps) {
        if (step == "..")
            --depth;
        else if (!step.isEmpty() && step != ".")
            ++depth;
        if (depth < 0)
            return false;
    }
    return true;
}

} // namespace VeskFM
