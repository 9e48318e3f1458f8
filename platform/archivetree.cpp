// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "archivetree.h"

#include "archivelimits.h"
#include "localarchivemounts.h"
#include "pathcodec.h"

#include <climits>

namespace VeskFM
{

ArchiveTree::ArchiveTree(const QString &archive, const ArchiveIdentity &identity)
    : m_archive(archive)
    , m_identity(identity)
    , m_mountPath(LocalArchiveMounts::instance().mountPathOf(archive, identity))
    , m_nodes(1)
{
    LocalArchiveMounts::instance().addListing(m_mountPath);
}

ArchiveTree::~ArchiveTree()
{
    LocalArchiveMounts::instance().removeListing(m_mountPath);
}

bool ArchiveTree::add(const ArchiveNodeRecord &record)
{
    constexpr ArchiveLimits limits;
    const bool isName = !record.name.isEmpty() && record.name.size() <= NAME_MAX && record.name != "."
        && record.name != ".." && !record.name.contains('/') && !record.name.contains('\0');
    if (!isName || record.parent >= m_nodes.size() || record.parent < m_nodes.back().parent
        || !isDir(int(record.parent)) || record.kind > ArchiveNodeRecord::Link || record.size < 0
        || record.link.size() >= PATH_MAX || qint64(m_nodes.size()) > limits.entries
        || m_texts.size() + record.name.size() + record.link.size() > limits.textBytes)
        return false;
    Node &parent = m_nodes[record.parent];
    if (parent.children == 0)
        parent.firstChild = quint32(m_nodes.size());
    else if (nameBytes(int(m_nodes.size()) - 1) >= record.name)
        return false;
    ++parent.children;

    Node node;
    node.parent = record.parent;
    node.target = record.kind == ArchiveNodeRecord::Link ? record.target : -1;
    node.size = record.size;
    node.modifiedMs = record.modifiedMs;
    node.text = quint32(m_texts.size());
    node.linkSize = quint16(record.link.size());
    node.nameSize = quint8(record.name.size());
    node.kind = record.kind;
    node.isExecutable = record.isExecutable;
    m_texts += record.name;
    m_texts += record.link;
    m_nodes.push_back(node);
    return true;
}

bool ArchiveTree::finish()
{
    m_nodes.shrink_to_fit();
    m_texts.squeeze();
    for (const Node &node : m_nodes) {
        if (node.target >= int(m_nodes.size()) || node.target < -1 || (node.target >= 0 && isLink(node.target)))
            return false;
    }
    return true;
}

qint64 ArchiveTree::memoryBytes() const
{
    return qint64(sizeof *this) + qint64(m_nodes.size() * sizeof(Node)) + m_texts.size();
}

QByteArray ArchiveTree::nameBytes(int node) const
{
    const Node &data = m_nodes[size_t(node)];
    return QByteArray::fromRawData(m_texts.constData() + data.text, data.nameSize);
}

QString ArchiveTree::name(int node) const
{
    return PathCodec::decode(nameBytes(node));
}

QString ArchiveTree::link(int node) const
{
    const Node &data = m_nodes[size_t(node)];
    return PathCodec::decode(QByteArray::fromRawData(m_texts.constData() + data.text + data.nameSize, data.linkSize));
}

QString ArchiveTree::path(int node) const
{
    QString path = name(node);
    for (int above = parent(node); above != 0; above = parent(above))
        path.prepend(name(above) + QLatin1Char('/'));
    return path;
}

int ArchiveTree::child(int node, const QByteArray &name) const
{
    int begin = firstChild(node);
    int end = childEnd(node);
    while (begin < end) {
        const int middle = begin + (end - begin) / 2;
        if (nameBytes(middle) < name)
            begin = middle + 1;
        else
            end = middle;
    }
    return begin < childEnd(node) && nameBytes(begin) == name ? begin : -1;
}

int ArchiveTree::find(const QString &path) const
{
    const QList<QByteArray> names = PathCodec::encode(path).split('/');
    int node = 0;
    for (int i = 0; i < names.size(); ++i) {
        if (names.at(i).isEmpty())
            continue;
        if (isLink(node))
            node = target(node);
        if (node < 0 || !isDir(node))
            return -1;
        node = child(node, names.at(i));
        if (node < 0)
            return -1;
    }
    return node;
}

bool ArchiveTree::hasDirs(int node) const
{
    for (int i = firstChild(node); i < childEnd(node); ++i) {
        const int real = isLink(i) ? target(i) : i;
        if (real >= 0 && isDir(real))
            return true;
    }
    return false;
}

} // namespace VeskFM
