// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/propertyenumerator.h>

#include "holderpool_p.h"

#include <veskfm/desktopentrypool.h>
#include <veskfm/entrybasepropertyset.h>
#include <veskfm/entryviewparameters.h>
#include <veskfm/propertydataholder.h>
#include <veskfm/propsplugin.h>
#include <veskfm/trash.h>
#include <veskplatform/veskicontheme.h>
#include <veskplatform/vfs.h>

#include <QTimer>
#include <QtConcurrentRun>

#include <algorithm>

namespace VeskFM
{

namespace
{

constexpr int basePropertyCount = 2; // name and type
constexpr int cornerCount = 4;
constexpr int idleHolderLimit = 5000;
constexpr int trimIntervalMs = 180000;
constexpr int flushIntervalMs = 200; // views repaint in groups, yet a slow directory fills visibly

QString holderKey(const Entry &entry)
{
    // A storage place and the directory it is mounted on look different, so they must not share a holder.
    const QString localPath = entry.isStoragePlace() ? QString() : entry.localPath();
    return localPath.isEmpty() ? entry.path() : localPath;
}

int removeRequestsOf(const PropertyDataHolder *holder, EntryPropertyRequestList &requests)
{
    const auto isOfHolder = [holder](const EntryPropertyRequest &request) { return request.holder == holder; };
    const auto rest = std::remove_if(requests.begin(), requests.end(), isOfHolder);
    const int count = int(std::distance(rest, requests.end()));
    requests.erase(rest, requests.end());
    return count;
}

/// Brings the objects that refinement uses into being. Made by the worker they would live in its thread, and their timers
/// and signals would never come.
void makeObjectsOfWorker()
{
    VFS::ptr();
    VeskIconTheme::instance();
    EntryViewParameters::ptr();
    Trash::ptr();
    DesktopEntryPool::ptr();
}

} // namespace

QList<QPointer<PropertyEnumerator>> PropertyEnumerator::m_enumerators;

PropertyEnumerator::PropertyEnumerator(const QList<PropsPlugin *> &plugins, QObject *parent)
    : QObject(parent)
    , m_plugins(plugins)
    , m_watcher(new QFutureWatcher<EntryPropertyRequest>(this))
    , m_pool(std::make_unique<HolderPool>())
    , m_releaseTimer(new QTimer(this))
{
    connect(m_releaseTimer, &QTimer::timeout, this, &PropertyEnumerator::releaseDataHoldersTimeout);
    connect(m_watcher, &QFutureWatcherBase::finished, this, &PropertyEnumerator::holderUpdated);
    m_enumerators.append(this);
}

PropertyEnumerator::~PropertyEnumerator()
{
    stopProcessing();
    releaseDataHolders(0);
    m_watcher->waitForFinished(); // the worker uses sets of a holder that goes next
    m_runningHolder = nullptr;
    m_requests.clear();
    m_updates.clear();
    m_pool->destroyThoseOnlyRequestsHold();
}

int PropertyEnumerator::count() const
{
    int sum = basePropertyCount;
    for (const PropsPlugin *plugin : m_plugins)
        sum += plugin->propertySetSize();
    return sum;
}

int PropertyEnumerator::indexInPropertySet(int property, int *propertySet) const
{
    int index = property;
    int set = 0;
    if (property >= basePropertyCount) {
        index -= basePropertyCount;
        for (set = 1; set <= m_plugins.size(); ++set) {
            const int size = m_plugins.at(set - 1)->propertySetSize();
            if (index < size)
                break;
            index -= size;
        }
        if (set > m_plugins.size())
            return -1;
    }
    if (propertySet)
        *propertySet = set;
    return index;
}

QVariant PropertyEnumerator::propertyNameData(int property, int role)
{
    int propertySet = -1;
    const int index = indexInPropertySet(property, &propertySet);
    if (propertySet < 0)
        return {};
    if (propertySet == 0)
        return EntryBasePropertySet::headerData(index, role);
    return m_plugins.at(propertySet - 1)->propertyHeaderData(index, role);
}

bool PropertyEnumerator::isSortableProperty(int property)
{
    int propertySet = -1;
    const int index = indexInPropertySet(property, &propertySet);
    if (propertySet <= 0) // -1 counts as sortable: to the models it means "keep the column"
        return propertySet == 0;
    return m_plugins.at(propertySet - 1)->isPropertySortable(index);
}

EntryPropertySet *PropertyEnumerator::createPropertySet(int propertySet) const
{
    if (propertySet == 0)
        return new EntryBasePropertySet;
    if (propertySet < 0 || propertySet > m_plugins.size())
        return nullptr;
    return m_plugins.at(propertySet - 1)->createPropertySet();
}

QVector<int> PropertyEnumerator::propertySetsProvidingEmblems() const
{
    QVector<int> propertySets;
    for (int i = 0; i < m_plugins.size(); ++i) {
        if (m_plugins.at(i)->providesEmblems())
            propertySets.append(i + 1);
    }
    return propertySets;
}

void PropertyEnumerator::setShowLinkEmblem(bool on)
{
    m_showLinkEmblem = on;
}

bool PropertyEnumerator::showLinkEmblem() const
{
    return m_showLinkEmblem;
}

void PropertyEnumerator::setShowPropertyEmblems(bool on)
{
    m_showPropertyEmblems = on;
}

bool PropertyEnumerator::showPropertyEmblems() const
{
    return m_showPropertyEmblems;
}

PropertyDataHolder *PropertyEnumerator::allocPropertyDataHolder(const Entry &entry)
{
    return m_pool->alloc(holderKey(entry), m_plugins.size() + 1);
}

void PropertyEnumerator::releasePropertyDataHolder(PropertyDataHolder *holder)
{
    if (holder)
        m_pool->release(holder);
}

void PropertyEnumerator::releaseDataHolders(int limit)
{
    m_pool->trim(limit);
}

void PropertyEnumerator::releaseDataHoldersTimeout()
{
    releaseDataHolders(idleHolderLimit);
}

int PropertyEnumerator::idleHolderCount() const
{
    return m_pool->idleCount();
}

QString PropertyEnumerator::displayedName(const Entry &entry)
{
    PropertyDataHolder *holder = allocPropertyDataHolder(entry);
    const QString name = holder->propertyValueData(entry, 0, Qt::DisplayRole, this).toString();
    releasePropertyDataHolder(holder);
    return name;
}

QIcon PropertyEnumerator::icon(const Entry &entry)
{
    PropertyDataHolder *holder = allocPropertyDataHolder(entry);
    holder->refinePropertyAtIndex(1, this); // of the built-in set: the icon follows the content
    const QIcon icon = holder->propertyValueData(entry, 0, Qt::DecorationRole, this).value<QIcon>();
    releasePropertyDataHolder(holder);
    return icon;
}

QStringList PropertyEnumerator::emblems(const Entry &entry, const QVector<EntryPropertySet *> &sets) const
{
    QString names[cornerCount];
    if (m_showLinkEmblem && (entry.isSymLink() || entry.fileName().endsWith(QLatin1String(".desktop"))))
        names[0] = QStringLiteral("emblem-symbolic-link");

    for (const EntryPropertySet *set : m_showPropertyEmblems ? sets : QVector<EntryPropertySet *>()) {
        const QStringList ofSet = set ? set->emblems(entry) : QStringList();
        for (int corner = 0; corner < qMin(cornerCount, ofSet.size()); ++corner) {
            if (!ofSet.at(corner).isEmpty())
                names[corner] = ofSet.at(corner);
        }
    }

    QStringList result;
    for (const QString &name : names)
        result.append(name);
    while (!result.isEmpty() && result.last().isEmpty()) // those between stay: the position is the corner
        result.removeLast();
    return result;
}

void PropertyEnumerator::startProcessing()
{
    if (m_processingCount++ != 0)
        return;
    makeObjectsOfWorker();
    m_releaseTimer->start(trimIntervalMs);
    m_flushClock.start();
    processNextHolder();
}

void PropertyEnumerator::stopProcessing()
{
    // No mirror image of the start: the end of a start leaves the queue to other users, and only a call without one
    // throws it away. The references of the discarded requests are gone with them.
    if (m_processingCount-- != 0)
        return;
    m_releaseTimer->stop();
    m_requests.clear();
    m_updates.clear();
}

void PropertyEnumerator::updatePropertySets(const QVector<EntryPropertySet *> &sets, PropertyDataHolder *holder,
                                            const Entry &entry)
{
    if (!holder)
        return;
    holder->incrementReferenceCount();
    ++holder->m_requestReferences;
    m_requests.append({sets, holder, entry, holder->m_invalidations});
    m_flushClock.start();
    processNextHolder();
}

EntryPropertyRequest PropertyEnumerator::updateHolder(const EntryPropertyRequest &request)
{
    for (EntryPropertySet *set : request.propertySets) {
        if (set)
            PropertyDataHolder::refineSet(set, request.entry);
    }
    PropertyDataHolder *const holder = request.holder;
    const auto isOutdated = [&] {
        return request.invalidations >= 0 && holder->m_invalidations != request.invalidations;
    };
    if (!holder || isOutdated()) // the entry changed, and is prepared and refined anew when somebody asks
        return request;
    holder->setRefined();
    if (isOutdated()) { // just now: the marks were not for this state of the entry
        holder->m_prepared = 0;
        holder->m_refined = 0;
    }
    return request;
}

void PropertyEnumerator::processNextHolder()
{
    if (m_processingCount <= 0)
        return;
    if (m_requests.isEmpty()) {
        flushUpdatedHolders();
        return;
    }
    if (m_flushClock.hasExpired(flushIntervalMs))
        flushUpdatedHolders();
    if (m_busy || m_requests.isEmpty()) // a receiver of the flush may have come here, or stopped everything
        return;

    const EntryPropertyRequest request = m_requests.takeFirst();
    m_busy = true;
    m_runningHolder = request.holder;
    m_watcher->setFuture(QtConcurrent::run(&PropertyEnumerator::updateHolder, request));
}

void PropertyEnumerator::holderUpdated()
{
    if (!m_busy || !m_watcher->isFinished())
        return;
    m_busy = false;
    if (m_runningHolder) // else it was destroyed meanwhile
        m_updates.append(m_watcher->result());
    m_runningHolder = nullptr;
    processNextHolder();
}

void PropertyEnumerator::flushUpdatedHolders()
{
    if (m_updates.isEmpty())
        return;
    EntryPropertyRequestList updates;
    updates.swap(m_updates); // receivers may queue more
    EntryPropertyRequestList announced;
    for (const EntryPropertyRequest &update : qAsConst(updates)) {
        --update.holder->m_requestReferences;
        if (update.holder->referenceCount() > 1) {
            update.holder->decrementReferenceCount();
            announced.append(update);
        } else {
            releasePropertyDataHolder(update.holder); // nobody shows it any more
        }
    }
    Q_EMIT dataHoldersUpdated(announced);
    m_flushClock.start();
}

int PropertyEnumerator::pendingRequestCount() const
{
    return m_requests.size();
}

int PropertyEnumerator::removeSelfRequests(const PropertyDataHolder *holder)
{
    return holder && holder->m_requestReferences ? removeRequestsOf(holder, m_requests) : 0;
}

int PropertyEnumerator::removeSelfUpdates(const PropertyDataHolder *holder)
{
    return holder && holder->m_requestReferences ? removeRequestsOf(holder, m_updates) : 0;
}

void PropertyEnumerator::removeSelfRequestsForAllEnumerators(const PropertyDataHolder *holder)
{
    if (!holder || !holder->m_requestReferences) // the usual case when thousands of idle holders are trimmed
        return;
    cleanOutdatedEnumerators();
    for (const QPointer<PropertyEnumerator> &enumerator : qAsConst(m_enumerators))
        enumerator->removeSelfRequests(holder);
}

void PropertyEnumerator::removeSelfUpdatesForAllEnumerators(const PropertyDataHolder *holder)
{
    if (!holder || !holder->m_requestReferences)
        return;
    cleanOutdatedEnumerators();
    for (const QPointer<PropertyEnumerator> &enumerator : qAsConst(m_enumerators))
        enumerator->removeSelfUpdates(holder);
}

void PropertyEnumerator::abandonRunningRequests(const PropertyDataHolder *holder)
{
    if (!holder->m_requestReferences)
        return;
    for (const QPointer<PropertyEnumerator> &enumerator : qAsConst(m_enumerators)) {
        if (!enumerator || enumerator->m_runningHolder != holder)
            continue;
        enumerator->m_watcher->waitForFinished();
        enumerator->m_runningHolder = nullptr;
    }
}

void PropertyEnumerator::cleanOutdatedEnumerators()
{
    m_enumerators.removeAll(QPointer<PropertyEnumerator>());
}

} // namespace VeskFM
