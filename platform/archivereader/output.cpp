// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "output.h"

#include "../archiverecords.h"

#include <unistd.h>

namespace VeskFM
{

Output::Output()
{
    m_file.open(STDOUT_FILENO, QIODevice::WriteOnly);
    m_stream.setDevice(&m_file);
    m_stream.setVersion(ArchiveRecords::streamVersion);
    m_stream << ArchiveRecords::magic;
}

void Output::writeTree(const MemberTree &tree)
{
    const std::vector<int> order = tree.ordered();
    std::vector<qint32> places(tree.nodes().size(), -1);
    for (size_t i = 0; i < order.size(); ++i)
        places[size_t(order[i])] = qint32(i);
    for (size_t i = 1; i < order.size(); ++i) {
        const MemberTree::Node &node = tree.nodes()[size_t(order[i])];
        ArchiveNodeRecord record;
        record.parent = quint32(places[size_t(node.parent)]);
        record.kind = node.kind == MemberTree::Dir ? ArchiveNodeRecord::Dir
            : node.kind == MemberTree::Link        ? ArchiveNodeRecord::Link
                                                   : ArchiveNodeRecord::File;
        record.isExecutable = node.isExecutable;
        record.size = node.size;
        record.modifiedMs = node.modifiedMs;
        record.target = node.target < 0 ? -1 : places[size_t(node.target)];
        record.name = node.name;
        record.link = node.link;
        m_stream << quint8(ArchiveRecords::Node) << record;
    }
}

void Output::writeProgress(qint64 done, qint64 total)
{
    const qint64 percent = total > 0 ? qint64(double(done) * 100 / double(total)) : 0;
    if (percent == m_toldPercent)
        return;
    m_toldPercent = percent;
    m_stream << quint8(ArchiveRecords::Progress) << qint32(percent);
    m_file.flush();
}

void Output::writeEnd(ArchiveError error)
{
    m_stream << quint8(ArchiveRecords::End) << quint8(error);
    m_file.flush();
}

} // namespace VeskFM
