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
    replaceState(EntryBaseState::prepared(entry));
    m_madeIcon.reset();
}

QVariant EntryBasePropertySet::value(const Entry &entry, int index, int role) const
{
    const bool isText = role == Qt::DisplayRole || role == Qt::UserRole;
    if (index == 0) {
        if (isText)
            return displayName(entry);
        if (role == Qt::ToolTipRole) {
            const StatePtr current = state();
            return current->toolTip.isEmpty() ? displayName(entry) : current->toolTip;
        }
        if (role == Qt::DecorationRole)
            return icon();
    } else if (index == 1) {
        if (isText)
            return entry.isSymLink() ? translated(QT_TRANSLATE_NOOP("EntryBasePropertySet", "symbolic link"))
                                     : mimeTypeComment(state()->mimeType);
        if (role == Qt::ToolTipRole)
            return entry.isSymLink() ? QString() : state()->mimeType;
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
    }
    refine(entry, true);
}

void EntryBasePropertySet::refine(const Entry &entry, bool presentationUpdate)
{
    for (int attempt = 0; attempt < refineAttempts; ++attempt) {
        quint32 generation = 0;
        const StatePtr before = state(&generation);
        StatePtr refined = EntryBaseState::refined(*before, entry, presentationUpdate);
        if (!refined)
            return;
        const SpinGuard guard(m_lock);
        if (m_generation == generation) {
            m_state.swap(refined);
            return;
        }
    }
}

/// Makes @p next the state and every refinement under way outdated.
void EntryBasePropertySet::replaceState(StatePtr next)
{
    const SpinGuard guard(m_lock); // released before the old state, now in next, is given up
    m_state.swap(next);
    ++m_generation;
}

EntryBasePropertySet::StatePtr EntryBasePropertySet::state(quint32 *generation) const
{
    const SpinGuard guard(m_lock);
    if (generation)
        *generation = m_generation;
    return m_state;
}

QString EntryBasePropertySet::displayName(const Entry &entry) const
{
    const QString name = [this] {
        const SpinGuard guard(m_lock);
        return m_state->displayName;
    }();
    if (!name.isEmpty())
        return name;
    return entry.isPlace() ? entry.lastPathSection() : entry.fileName();
}

QIcon EntryBasePropertySet::icon() const
{
    const StatePtr current = state();
    if (current->icon.isPlain())
        return current->icon.make(); // remembered by VeskIcon
    if (!m_madeIcon || m_madeIcon->state != current)
        m_madeIcon = std::make_unique<MadeIcon>(MadeIcon{current, current->icon.make()});
    return m_madeIcon->icon;
}

} // namespace VeskFM
