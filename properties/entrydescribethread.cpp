// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entrydescribethread.h>

#include <veskfm/core.h>
#include <veskfm/props.h>
#include <veskfm/textdigestenumerator.h>

#include <QCoreApplication>
#include <QTimer>

namespace VeskFM
{

namespace
{
constexpr int relaxationMs = 1000; // who walks through a list with the keyboard does not want directories walked
constexpr int animationMs = 100;
constexpr int mostDots = 3; // of the animation

QString firstDescription(const EntryList &entries)
{
    if (entries.size() != 1)
        return QCoreApplication::translate("EntryDescribeThread", "%n entry(s)", nullptr, entries.size());
    const Entry &entry = entries.first();
    const QString name = Props::ptr()->displayedName(entry);
    if (!entry.isFile() || entry.isArchiveMountPoint())
        return name;
    return name + QLatin1String(" (") + Core::dataSizeAsString(entry.fileSize()) + QLatin1Char(')');
}
} // namespace

EntryDescribeThread::EntryDescribeThread(QObject *parent)
    : Thread(parent)
    , m_digests(Props::ptr()->createTextDigestEnumerator())
    , m_relaxationTimer(new QTimer(this))
    , m_animationTimer(new QTimer(this))
{
    m_relaxationTimer->setSingleShot(true);
    connect(m_relaxationTimer, &QTimer::timeout, this, &EntryDescribeThread::relaxationTimeout);
    connect(m_animationTimer, &QTimer::timeout, this, &EntryDescribeThread::animationTimeout);
    // By member pointer: by name, the signal of this class would be taken for that of the base.
    connect(this, &QThread::finished, this, &EntryDescribeThread::conclude);
}

EntryDescribeThread::~EntryDescribeThread()
{
    stop(); // a thread that runs must not be destroyed
    Props::ptr()->releaseTextDigestEnumerator(m_digests);
}

void EntryDescribeThread::describe(const EntryList &entries)
{
    stop();
    m_animationStep = 0;
    m_entries = entries;
    const QString text = firstDescription(entries);
    setDescription(text);
    m_relaxationTimer->start(entries.hasDir() ? relaxationMs : 0);
    m_animationTimer->start(animationMs);
    Q_EMIT descriptionUpdated(text);
}

void EntryDescribeThread::stop()
{
    cancel();
    wait();
}

void EntryDescribeThread::cancel()
{
    m_relaxationTimer->stop();
    setRunning(false);
}

void EntryDescribeThread::relaxationTimeout()
{
    m_relaxationTimer->stop();
    if (isRunning())
        return;
    setRunning(true);
    ++m_runs;
    start(LowPriority);
    if (!isRunning() && !isFinished()) // the system has no thread left: the description stays as short as it is
        conclude();
}

void EntryDescribeThread::animationTimeout()
{
    if (!isUnderWay()) { // stopped before the background part began, so that nobody will tell of its end
        m_animationTimer->stop();
        Q_EMIT descriptionUpdated(description());
        return;
    }
    const QString animation(1 + m_animationStep, QLatin1Char('.'));
    m_animationStep = (m_animationStep + 1) % mostDots;
    Q_EMIT descriptionUpdated(description() + QLatin1String(", ") + animation);
}

void EntryDescribeThread::run()
{
    m_digests->start(m_entries, &m_running);
    const int count = m_digests->count();
    for (int i = 0; i < count && !isStopRequested(); ++i) {
        const QString digest = m_digests->text(i);
        if (!digest.isEmpty())
            setDescription(description() + QLatin1String(", ") + digest);
    }
}

/// The thread tells of its end through the event loop: by then another description may be under way.
void EntryDescribeThread::conclude()
{
    ++m_endings;
    if (isUnderWay())
        return;
    m_animationTimer->stop();
    Q_EMIT descriptionUpdated(description());
    Q_EMIT finished();
}

/// Whether a background part is waited for, or runs, or has ended without having told yet.
bool EntryDescribeThread::isUnderWay() const
{
    return m_relaxationTimer->isActive() || m_endings < m_runs;
}

QString EntryDescribeThread::description() const
{
    const QMutexLocker lock(&m_descriptionMutex);
    return m_description;
}

void EntryDescribeThread::setDescription(const QString &text)
{
    const QMutexLocker lock(&m_descriptionMutex);
    m_description = text;
}

void EntryDescribeThread::setRunning(bool running)
{
    __atomic_store_n(&m_running, running, __ATOMIC_RELEASE);
}

bool EntryDescribeThread::isStopRequested() const
{
    return !__atomic_load_n(&m_running, __ATOMIC_ACQUIRE);
}

} // namespace VeskFM
