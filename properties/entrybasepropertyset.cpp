// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entrybasepropertyset.h>

#include "entrybasestate_p.h"

#include <QCoreApplication>
#include <QHash>
#include <QMimeDatabase>

#include <mutex>
#include <thread>

namespace VeskFM
{

namespace
{

constexpr int refineAttempts = 2; // a file that changes all the time must not hold up the others in the queue

class SpinGuard
{
public:
    explicit SpinGuard(std::atomic_flag &lock)
        : m_lock(lock)
    {
        while (m_lock.test_and_set(std::memory_order_acquire))
            std::this_thread::yield();
    }
    ~SpinGuard() { m_lock.clear(std::memory_order_release); }
    Q_DISABLE_COPY_MOVE(SpinGuard)

private:
    std::atomic_flag &m_lock;
};

QString translated(const char *text)
{
    return QCoreApplication::translate("EntryBasePropertySet", text);
}

/// The description of a MIME type. The database reads and parses a file for each question, so answers are kept.
QString mimeTypeComment(const QString &mimeType)
{
    static std::mutex mutex;
    static QHash<QString, QString> comments;
    if (mimeType.isEmpty())
        return {};
    const std::lock_guard<std::mutex> lock(mutex);
    const auto known = comments.constFind(mimeType);
    if (known != comments.constEnd())
        return *known;
    return *comments.insert(mimeType, QMimeDatabase().mimeTypeForName(mimeType).comment());
}

} // namespace

struct EntryBasePropertySet::MadeIcon
{
    StatePtr state; // what it was made from
    QIcon icon;
};

EntryBasePropertySet::EntryBasePropertySet()
    : m_state(EntryBaseState::empty())
{
}

EntryBasePropertySet::~EntryBasePropertySet() = default;

QVariant EntryBasePropertySet::headerData(int index, int role)
{
    if (index < 0 || index > 1)
        return {};
    switch (role) {
    case Qt::UserRole:
        return index == 0 ? QStringLiteral("Name") : QStringLiteral("Type");
    case Qt::DisplayRole:
        return index == 0 ? translated(QT_TRANSLATE_NOOP("EntryBasePropertySet", "Name"))
                          : translated(QT_TRANSLATE_NOOP("EntryBasePropertySet", "Type"));
    case Qt::ToolTipRole:
        return index == 1 ? translated(QT_TRANSLATE_NOOP("EntryBasePropertySet", "MIME type")) : QVariant();
    default:
        return {};
    }
}

void EntryBasePropertySet::prepare(const Entry &entry)
{
    noteDevicePixelRatio();
    StatePtr prepared = EntryBaseState::prepared(entry);
    m_madeIcon.reset();
    QVector<StatePtr> others;
    const SpinGuard guard(m_lock); // released before the old states, by then out here, are given up
    m_state.swap(prepared);
    m_others.swap(others);
    m_isRefined = false;
    ++m_generation;
}

QVariant EntryBasePropertySet::value(const Entry &entry, int index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::UserRole;
    if (index == 0) {
        if (isText)
            return displayName(entry);
        if (role == Qt::ToolTipRole) {
            const StatePtr current = stateOf(entry);
            return current->toolTip.isEmpty() ? displayName(entry) : current->toolTip;
        }
        if (role == Qt::DecorationRole)
            return icon(entry);
    } else if (index == 1) {
        if (isText)
            return entry.isSymLink() ? translated(QT_TRANSLATE_NOOP("EntryBasePropertySet", "symbolic link"))
                                     : mimeTypeComment(stateOf(entry)->mimeType);
        if (role == Qt::ToolTipRole)
            return entry.isSymLink() ? QString() : stateOf(entry)->mimeType;
    }
    return {};
}

bool EntryBasePropertySet::canRefineData(const Entry &) const
{
    return true;
}

void EntryBasePropertySet::refineData(const Entry &entry)
{
    refine(entry, false);
}

void EntryBasePropertySet::updatePresentation(const Entry &entry, bool refined)
{
    if (!refined)
        return;
    {
        const SpinGuard guard(m_lock);
        ++m_generation; // a refinement under way goes by the old parameters: its result must not come after this one
        m_isRefined = false; // the same holds for the states of the other entries
    }
    refine(entry, true);
}

void EntryBasePropertySet::refine(const Entry &entry, bool presentationUpdate)
{
    const QString place = EntryBaseState::placeOf(entry);
    for (int attempt = 0; attempt < refineAttempts; ++attempt) {
        StatePtr before;
        quint32 generation = 0;
        {
            const SpinGuard guard(m_lock);
            generation = m_generation;
            if (const StatePtr *known = knownState(place))
                before = *known;
        }
        if (!before) // the set was prepared for another entry of the holder
            before = EntryBaseState::prepared(entry);
        const StatePtr refined = EntryBaseState::refined(*before, entry, presentationUpdate);
        if (publish(refined ? refined : before, generation))
            return;
    }
}

/// Takes over the outcome of a refinement. Returns false, with nothing changed, when that is outdated.
bool EntryBasePropertySet::publish(StatePtr refined, quint32 generation)
{
    QVector<StatePtr> unrefined;
    const SpinGuard guard(m_lock);
    if (m_generation != generation)
        return false;
    if (!m_isRefined) { // nobody may come to refine the other states: they are made anew
        m_isRefined = true;
        m_state.swap(refined);
        m_others.swap(unrefined);
    } else if (StatePtr *const known = knownState(refined->place)) {
        known->swap(refined);
    } else {
        m_others.append(refined);
    }
    return true;
}

/// The state for @p entry, made here and refined as far as the set is when there is none.
EntryBasePropertySet::StatePtr EntryBasePropertySet::stateOf(const Entry &entry) const
{
    const QString place = EntryBaseState::placeOf(entry);
    StatePtr made;
    bool isRefined = false; // what was made
    for (;;) {
        {
            const SpinGuard guard(m_lock);
            if (m_state == EntryBaseState::empty())
                return m_state; // never prepared: nothing is known of anything
            if (const StatePtr *const known = knownState(place))
                return *known;
            if (made && isRefined == m_isRefined) {
                m_others.append(made);
                return made;
            }
            isRefined = m_isRefined;
        }
        made = EntryBaseState::prepared(entry);
        if (isRefined) {
            if (const StatePtr refined = EntryBaseState::refined(*made, entry, false))
                made = refined;
        }
    }
}

/// Null when there is none. Call it, and use what it returns, with the lock held.
EntryBasePropertySet::StatePtr *EntryBasePropertySet::knownState(const QString &place) const
{
    if (m_state->place == place)
        return &m_state;
    for (StatePtr &other : m_others) {
        if (other->place == place)
            return &other;
    }
    return nullptr;
}

QString EntryBasePropertySet::displayName(const Entry &entry) const
{
    const QString name = stateOf(entry)->displayName;
    if (!name.isEmpty())
        return name;
    return entry.isPlace() ? entry.lastPathSection() : entry.fileName();
}

QIcon EntryBasePropertySet::icon(const Entry &entry) const
{
    const StatePtr current = stateOf(entry);
    if (current->icon.isPlain())
        return current->icon.make(); // remembered by VeskIcon
    if (!m_madeIcon || m_madeIcon->state != current)
        m_madeIcon = std::make_unique<MadeIcon>(MadeIcon{current, current->icon.make()});
    return m_madeIcon->icon;
}

} // namespace VeskFM
