// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "itemcomparison.h"

#include "naturalcompare.h"

#include <veskfm/model.h>
#include <veskfm/modelitem.h>
#include <veskplatform/vfs.h>
#include <veskplatform/vfsplacebase.h>

#include <QDateTime>

#include <array>

namespace VeskFM
{

namespace
{

constexpr std::array<int, 3> groupOrder = {Entry::Dir, Entry::Archive, Entry::File};

int groupOf(int type)
{
    for (size_t i = 0; i < groupOrder.size(); ++i) {
        if (groupOrder[i] == type)
            return int(i);
    }
    return -1;
}

/// Links stand among what they point to.
int withoutLink(int type)
{
    switch (type) {
    case Entry::DirLink:
        return Entry::Dir;
    case Entry::ArchiveLink:
        return Entry::Archive;
    case Entry::FileLink:
        return Entry::File;
    default:
        return type;
    }
}

/// Negative when @p a goes first. Kinds outside the list go by number, the higher first, also against those in the
/// list; programs rely on it, so it is not to be turned round.
int compareTypes(int a, int b)
{
    const int groupA = groupOf(a);
    const int groupB = groupOf(b);
    if (groupA >= 0 && groupB >= 0)
        return groupA - groupB;
    return a == b ? 0 : a > b ? -1 : 1;
}

template <typename T> int compareAs(const QVariant &a, const QVariant &b)
{
    const T valueA = a.value<T>();
    const T valueB = b.value<T>();
    return valueA < valueB ? -1 : valueB < valueA ? 1 : 0;
}

bool isText(const QVariant &value)
{
    return value.userType() == QMetaType::QString;
}

const QString &textOf(const QVariant &value)
{
    return *static_cast<const QString *>(value.constData());
}

} // namespace

ItemComparison::ItemComparison(const ModelItem *parent)
    : m_order(Model::Ascending)
    , m_property(0)
    , m_texts(Texts::Natural)
    , m_collator(QLocale::c())
    , m_parentEntry(parent->entry())
{
    bool numeric = true;
    bool byLocale = false;
    if (const Model *const model = parent->model()) {
        if (model->sortOrder() != Model::KeepOrder)
            m_order = model->sortOrder();
        m_property = model->propertySortIndex();
        numeric = model->isNumericSortingEnabled();
        byLocale = model->isLocaleSortingEnabled();
    }
    m_texts = numeric ? Texts::Natural : Texts::CodeUnits;
    if (!byLocale)
        return;
    m_collator = QCollator();
    if (m_collator.locale().language() == QLocale::C)
        return; // where the toolkit's collator would ignore the numeric mode
    m_collator.setNumericMode(numeric);
    m_texts = Texts::Collated;
}

ItemKey ItemComparison::key(const ModelItem *item) const
{
    __builtin_prefetch(item->dataHolder()); // arrives while the entry is asked
    ItemKey key;
    key.isDotDot = item->isDotDotDir();
    key.isPlace = item->entry().isPlace();
    if (key.isPlace) {
        key.placeIndex = VFS::ptr()->placeBase()->placeOrderIndex(item->entry(), m_parentEntry);
    } else {
        key.type = withoutLink(item->entry().type());
        key.value = item->data(Model::SortKeyRole, m_property);
    }
    return key;
}

bool ItemComparison::lessThan(const ItemKey &a, const ItemKey &b) const
{
    if (a.isDotDot != b.isDotDot)
        return a.isDotDot;
    if (a.isPlace != b.isPlace)
        return a.isPlace;
    if (a.isPlace)
        return a.placeIndex < b.placeIndex; // places of one index are equal, whatever their names
    if (const int order = compareTypes(a.type, b.type))
        return order < 0;
    if (ignoresValues())
        return false;
    const int order = compareValues(a.value, b.value);
    return isDescending() ? order > 0 : order < 0;
}

int ItemComparison::compareValues(const QVariant &a, const QVariant &b) const
{
    if (isText(a) && isText(b))
        return compareTexts(textOf(a), textOf(b));
    if (a.userType() == b.userType()) {
        switch (a.userType()) {
        case QMetaType::QDateTime:
            return compareAs<QDateTime>(a, b);
        case QMetaType::Double:
            return compareAs<double>(a, b);
        case QMetaType::Int:
            return compareAs<int>(a, b);
        case QMetaType::UInt:
            return compareAs<uint>(a, b);
        case QMetaType::LongLong:
            return compareAs<qlonglong>(a, b);
        case QMetaType::ULongLong:
            return compareAs<qulonglong>(a, b);
        default:
            return 0;
        }
    }
    if (!isText(a) && !isText(b))
        return 0;
    return QString::localeAwareCompare(a.toString(), b.toString());
}

int ItemComparison::compareTexts(const QString &a, const QString &b) const
{
    switch (m_texts) {
    case Texts::Natural:
        return naturalCompare(a, b);
    case Texts::CodeUnits:
        return a.compare(b);
    case Texts::Collated:
        break;
    }
    return m_collator.compare(a, b);
}

bool ItemComparison::isDescending() const
{
    return m_order == Model::Descending;
}

bool ItemComparison::ignoresValues() const
{
    return m_order != Model::Ascending && m_order != Model::Descending;
}

bool ItemComparison::isCyclicType(int type)
{
    return type > Entry::Dir && type < Entry::Archive;
}

qint64 ItemComparison::typeRank(int type)
{
    const int group = groupOf(type);
    if (group < 0)
        return -qint64(type);
    return group - (qint64(Entry::Dir) + 2); // between the negated numbers of the kinds above and below the three
}

} // namespace VeskFM
