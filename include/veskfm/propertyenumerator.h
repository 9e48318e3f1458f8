// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrypropertyrequest.h>
#include <veskfm/export.h>

#include <QElapsedTimer>
#include <QFutureWatcher>
#include <QIcon>
#include <QObject>
#include <QPointer>
#include <QStringList>
#include <QVariant>

#include <memory>

class QTimer;

namespace VeskFM
{

class HolderPool;
class PropsPlugin;

/// The property engine behind every model: it knows the columns, owns the holders that cache the values of entries, and
/// computes expensive values in the background.
///
/// Properties are numbered through: 0 "Name" and 1 "Type" belong to set 0, the built-in one; the columns of plug-in k
/// follow in list order and belong to set k + 1.
///
/// Thread: everything on the thread that made it, except updateHolder(). The classes that the worker uses are brought
/// into being by the first startProcessing(), which therefore belongs to the GUI thread.
class VESKFM_EXPORT PropertyEnumerator : public QObject
{
    Q_OBJECT

public:
    /// @param plugins borrowed, in column order
    explicit PropertyEnumerator(const QList<PropsPlugin *> &plugins, QObject *parent = nullptr);
    /// Waits for a running refinement and destroys the holders that nobody but requests refers to. Holders of rows stay,
    /// and leak unless somebody deletes them.
    ~PropertyEnumerator() override;

    int count() const; ///< number of properties
    /// The number of @p property within its set, whose index goes to @p propertySet. Returns -1 and leaves @p propertySet
    /// alone when it lies beyond the last plug-in. A negative number belongs to set 0 and comes back unchanged: whoever
    /// must tell it from an unknown one asks @p propertySet.
    int indexInPropertySet(int property, int *propertySet) const;
    QVariant propertyNameData(int property, int role); ///< header data; invalid for an unknown property
    bool isSortableProperty(int property);             ///< false for an unknown property
    /// A new set for slot @p propertySet, owned by the caller; null where there is none.
    EntryPropertySet *createPropertySet(int propertySet) const;
    QVector<int> propertySetsProvidingEmblems() const; ///< in plug-in order; never the built-in set

    void setShowLinkEmblem(bool on);
    bool showLinkEmblem() const;
    void setShowPropertyEmblems(bool on);
    bool showPropertyEmblems() const;

    /// The holder of @p entry, with one more reference. Entries with the same local path share one; a storage place, and
    /// what has no local path, goes by its VFS path.
    PropertyDataHolder *allocPropertyDataHolder(const Entry &entry);
    /// Gives a reference back. The last one parks the holder for reuse; its masks are cleared, its sets kept.
    void releasePropertyDataHolder(PropertyDataHolder *holder);
    /// Destroys idle holders, those released first, until at most @p limit remain.
    void releaseDataHolders(int limit);
    int idleHolderCount() const; ///< how many holders wait for reuse

    QString displayedName(const Entry &entry);
    /// The icon of @p entry as its content asks for, with emblems; blocks while the content is read.
    QIcon icon(const Entry &entry);
    /// Emblem names of @p entry by corner, see EntryPropertySet::emblems(): the link emblem and what @p sets provide,
    /// as far as they are switched on. A later set overrides an earlier one in the same corner.
    QStringList emblems(const Entry &entry, const QVector<EntryPropertySet *> &sets) const;

    /// Starts working on the queue. Calls count: the first one starts, and the trim of idle holders starts with it.
    void startProcessing();
    /// Takes a startProcessing() back. One more than there were starts stops the trim and throws the queue away, for good
    /// and for everybody: the holders of discarded requests are not reused before the enumerator is destroyed.
    void stopProcessing();
    /// Queues the expensive part of @p sets for @p entry and returns at once.
    ///
    /// Requests run one at a time on the global thread pool, in the order they were queued. Finished ones are announced
    /// in batches by dataHoldersUpdated(): about every 200 ms while work goes on, and when the queue runs empty.
    /// @param sets    borrowed from @p holder, which keeps them alive
    /// @param holder  gains one reference, given back when the request is announced; null is ignored
    ///
    /// While processing is stopped the request waits for startProcessing().
    void updatePropertySets(const QVector<EntryPropertySet *> &sets, PropertyDataHolder *holder, const Entry &entry);
    /// Refines the sets of one request and marks its holder as refined, also when a set throws; that is logged.
    ///
    /// Thread: a pool thread.
    static EntryPropertyRequest updateHolder(const EntryPropertyRequest &request);
    void processNextHolder();        ///< one step of the scheduler; runs after everything that could make work
    int pendingRequestCount() const; ///< requests queued and not yet started

    // Withdraw a holder that is being destroyed: requests not yet started, and finished ones not yet announced. They
    // return how many went; references are not given back.
    int removeSelfRequests(const PropertyDataHolder *holder);
    int removeSelfUpdates(const PropertyDataHolder *holder);
    static void removeSelfRequestsForAllEnumerators(const PropertyDataHolder *holder);
    static void removeSelfUpdatesForAllEnumerators(const PropertyDataHolder *holder);
    static void cleanOutdatedEnumerators(); ///< forgets enumerators that are gone

Q_SIGNALS:
    /// Refined data is there for these holders. Holders that nobody shows any more are left out, so the list may be empty.
    /// The batch carries no references: a queued receiver must not dereference the holders.
    void dataHoldersUpdated(const EntryPropertyRequestList &requests);

public Q_SLOTS:
    void releaseDataHoldersTimeout(); ///< trims the idle holders to 5000
    void flushUpdatedHolders();       ///< announces what is finished
    void holderUpdated();             ///< takes the finished request over

private:
    friend class PropertyDataHolder;

    static void abandonRunningRequests(const PropertyDataHolder *holder);

    static QList<QPointer<PropertyEnumerator>> m_enumerators;

    const QList<PropsPlugin *> m_plugins; // borrowed
    EntryPropertyRequestList m_requests;  // not yet started, oldest first
    EntryPropertyRequestList m_updates;   // finished and not yet announced, in order of completion
    QFutureWatcher<EntryPropertyRequest> *const m_watcher;
    QElapsedTimer m_flushClock;
    const std::unique_ptr<HolderPool> m_pool;
    QTimer *const m_releaseTimer;
    const PropertyDataHolder *m_runningHolder = nullptr; // null also when it was destroyed meanwhile
    bool m_busy = false;
    int m_processingCount = 0;
    bool m_showLinkEmblem = true;
    bool m_showPropertyEmblems = true;
};

} // namespace VeskFM
