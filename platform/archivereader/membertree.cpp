// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "membertree.h"

#include "memberpath.h"
#include "memberreader.h"

#include <climits>

#include <algorithm>
#include <limits>

namespace VeskFM
{

namespace
{
constexpr int mostHops = 40;             // as the system does
constexpr qint64 mostSteps = 50'000'000; // over all links: those of an archive made to be slow lead through each other
constexpr int root = 0;
} // namespace

MemberTree::MemberTree(const ArchiveLimits &limits)
    : m_limits(limits)
    , m_nodes(1)
{
}

ArchiveError MemberTree::build(MemberReader *reader)
{
    ArchiveMember member;
    for (int number = 0; reader->next(&member); ++number) {
        const ArchiveError error = number < m_limits.entries ? add(member, number) : ArchiveError::TooManyEntries;
        if (error != ArchiveError::None)
            return error;
    }
    if (reader->error() != ArchiveError::None)
        return reader->error();
    finishHardLinks();
    return finishLinks();
}

ArchiveError MemberTree::add(const ArchiveMember &member, int number)
{
    QList<QByteArray> names;
    if (member.kind == ArchiveMember::Other || !splitMemberPath(member.name, &names) || names.isEmpty())
        return ArchiveError::None;
    if (names.size() > m_limits.depth)
        return ArchiveError::TooDeep;
    if (member.name.size() > m_limits.pathBytes || member.target.size() >= PATH_MAX)
        return ArchiveError::NameTooLong;

    Node node;
    node.name = names.takeLast();
    node.isExecutable = member.isExecutable;
    node.modifiedMs = member.modifiedMs;
    switch (member.kind) {
    case ArchiveMember::File:
        node.kind = File;
        node.size = member.size;
        node.member = number;
        break;
    case ArchiveMember::HardLink:
        node.kind = File;
        node.hardLink = find(member.target);
        if (node.hardLink < 0 || m_nodes[size_t(node.hardLink)].kind != File)
            return ArchiveError::None;
        break;
    case ArchiveMember::SymLink:
        node.kind = Link;
        node.link = member.target;
        break;
    default:
        break;
    }
    int directory = root;
    for (const QByteArray &name : qAsConst(names)) {
        Node between;
        between.name = name;
        const ArchiveError error = put(directory, between);
        directory = m_children.value(Key(directory, name), -1);
        if (error != ArchiveError::None || directory < 0 || m_nodes[size_t(directory)].kind != Dir)
            return error; // behind a link
    }
    return put(directory, node);
}

ArchiveError MemberTree::put(int parent, const Node &node)
{
    if (node.name.size() > NAME_MAX)
        return ArchiveError::NameTooLong;
    int index = m_children.value(Key(parent, node.name), -1);
    if (index >= 0) {
        Node &former = m_nodes[size_t(index)];
        if (former.kind == Dir && node.kind == Dir && node.modifiedMs != 0)
            former.modifiedMs = node.modifiedMs; // it was there already as the way to something
        if (former.kind == Dir || (former.kind == Link && node.kind == Dir))
            return ArchiveError::None;
        if (node.hardLink >= 0 && follow(node.hardLink) == index)
            return ArchiveError::None; // to itself
        m_byMember.remove(former.member);
        former = node;
    } else {
        m_textBytes += node.name.size();
        if (qint64(m_nodes.size()) > m_limits.entries)
            return ArchiveError::TooManyEntries;
        index = int(m_nodes.size());
        m_nodes.push_back(node);
        m_children.insert(Key(parent, node.name), index);
    }
    m_nodes[size_t(index)].parent = parent;
    if (node.member >= 0)
        m_byMember.insert(node.member, index);
    m_textBytes += node.link.size();
    return m_textBytes > m_limits.textBytes ? ArchiveError::TooManyEntries : ArchiveError::None;
}

int MemberTree::find(const QByteArray &path) const
{
    QList<QByteArray> names;
    if (!splitMemberPath(path, &names))
        return -1;
    int node = root;
    for (const QByteArray &name : qAsConst(names)) {
        node = m_children.value(Key(node, name), -1);
        if (node < 0)
            return -1;
    }
    return node;
}

/// From a hard link to the file itself. There are no circles: put() lets none arise.
int MemberTree::follow(int node) const
{
    while (m_nodes[size_t(node)].hardLink >= 0)
        node = m_nodes[size_t(node)].hardLink;
    return node;
}

void MemberTree::finishHardLinks()
{
    for (Node &node : m_nodes) {
        if (node.hardLink < 0)
            continue;
        node.hardLink = follow(node.hardLink);
        const Node &file = m_nodes[size_t(node.hardLink)];
        node.isRefused = file.kind != File; // another member took its name
        node.size = file.size;
        node.isExecutable = file.isExecutable;
    }
}

ArchiveError MemberTree::finishLinks()
{
    qint64 steps = 0;
    for (size_t i = 0; i < m_nodes.size(); ++i) {
        if (m_nodes[i].kind != Link)
            continue;
        int depth = 0;
        for (int above = m_nodes[i].parent; above != root; above = m_nodes[size_t(above)].parent)
            ++depth;
        int hops = 0;
        int target = -1;
        m_nodes[i].isRefused = !staysInside(m_nodes[i].link, depth) || !resolve(int(i), &target, &hops, &steps);
        m_nodes[i].target = m_nodes[i].isRefused ? -1 : target;
        if (steps > mostSteps)
            return ArchiveError::TooManyEntries;
    }
    return ArchiveError::None;
}

/// Follows a link as the system would. False when that leads out of the archive; @p target is -1 when it leads to nothing.
bool MemberTree::resolve(int node, int *target, int *hops, qint64 *steps) const
{
    const Node &link = m_nodes[size_t(node)];
    int at = link.parent;
    *target = -1;
    if (++*hops > mostHops)
        return true;
    if (link.link.startsWith('/'))
        return false;
    const QList<QByteArray> names = link.link.split('/');
    *steps += names.size();
    for (const QByteArray &name : names) {
        if (m_nodes[size_t(at)].kind != Dir)
            return true;
        if (name.isEmpty() || name == ".")
            continue;
        if (name == "..") {
            if (at == root)
                return false;
            at = m_nodes[size_t(at)].parent;
            continue;
        }
        at = m_children.value(Key(at, name), -1);
        if (at >= 0 && m_nodes[size_t(at)].kind == Link && !resolve(at, &at, hops, steps))
            return false;
        if (at < 0)
            return true;
    }
    *target = at;
    return true;
}

QByteArray MemberTree::path(int node) const
{
    QByteArray path = m_nodes[size_t(node)].name;
    for (int above = m_nodes[size_t(node)].parent; above != root; above = m_nodes[size_t(above)].parent)
        path.prepend(m_nodes[size_t(above)].name + '/');
    return path;
}

qint64 MemberTree::unpackedBytes() const
{
    qint64 sum = 0;
    for (const Node &node : m_nodes) {
        if (node.kind != File || node.hardLink >= 0)
            continue;
        if (node.size > std::numeric_limits<qint64>::max() - sum)
            return std::numeric_limits<qint64>::max();
        sum += node.size;
    }
    return sum;
}

std::vector<int> MemberTree::ordered() const
{
    std::vector<int> byParent;
    for (int i = 1; i < int(m_nodes.size()); ++i) {
        if (!m_nodes[size_t(i)].isRefused)
            byParent.push_back(i);
    }
    const auto parentOf = [this](int node) { return m_nodes[size_t(node)].parent; };
    std::sort(byParent.begin(), byParent.end(), [&](int a, int b) {
        return parentOf(a) != parentOf(b) ? parentOf(a) < parentOf(b)
                                          : m_nodes[size_t(a)].name < m_nodes[size_t(b)].name;
    });
    std::vector<int> order{root};
    for (size_t i = 0; i < order.size(); ++i) {
        const auto begin =
            std::partition_point(byParent.begin(), byParent.end(), [&](int node) { return parentOf(node) < order[i]; });
        const auto end =
            std::partition_point(begin, byParent.end(), [&](int node) { return parentOf(node) == order[i]; });
        order.insert(order.end(), begin, end);
    }
    return order;
}

} // namespace VeskFM
