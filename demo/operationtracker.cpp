// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "operationtracker.h"

#include <veskfm/vendordomainprefix.h>

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>

using namespace VeskFM;

namespace
{

constexpr int progressIntervalMs = 400;

/// The service's result codes, as its interface description lists them.
QString problem(int code)
{
    static const char *const texts[] = {
        "",
        QT_TRANSLATE_NOOP("OperationTracker", "cancelled"),
        QT_TRANSLATE_NOOP("OperationTracker", "something is not there any more"),
        QT_TRANSLATE_NOOP("OperationTracker", "permission denied"),
        QT_TRANSLATE_NOOP("OperationTracker", "the name is taken"),
        QT_TRANSLATE_NOOP("OperationTracker", "no space left"),
        QT_TRANSLATE_NOOP("OperationTracker", "a folder cannot go into itself"),
        QT_TRANSLATE_NOOP("OperationTracker", "not possible here"),
        QT_TRANSLATE_NOOP("OperationTracker", "failed"),
        QT_TRANSLATE_NOOP("OperationTracker", "something changed while it was moved, and stays"),
    };
    const bool known = code >= 0 && code < int(std::size(texts));
    return OperationTracker::tr(known ? texts[code] : QT_TRANSLATE_NOOP("OperationTracker", "failed"));
}

} // namespace

OperationTracker::OperationTracker(QObject *parent)
    : QObject(parent)
{
    m_progressTimer.setInterval(progressIntervalMs);
    connect(&m_progressTimer, &QTimer::timeout, this, &OperationTracker::askForProgress);
}

bool OperationTracker::isAvailable()
{
    FOps *const operations = FOps::ptr(); // starts the service when it is first wanted
    if (!m_connected) {
        m_connected = true;
        connect(operations, &FOps::operationFinished, this, &OperationTracker::onFinished);
    }
    m_seen = m_seen || operations->isAvailable(); // one that has died since is started again
    if (!m_seen)
        Q_EMIT finished(tr("The service for file operations is not installed here"));
    return m_seen;
}

void OperationTracker::follow(const FOpId &id, const QString &text)
{
    m_running.insert(id, text);
    m_progressTimer.start();
    Q_EMIT progress(text + QStringLiteral(" …"));
}

void OperationTracker::onFinished(const FOpId &id, int code, const EntryList &entries, FOps::OperationType type)
{
    const auto operation = m_running.find(id);
    if (operation == m_running.end()) // another window's
        return;
    const QString text = *operation;
    m_running.erase(operation);
    if (m_running.isEmpty())
        m_progressTimer.stop();
    Q_EMIT finished(text + QStringLiteral(": ") + (code == 0 ? tr("done") : problem(code)));
    if (code == 0)
        Q_EMIT made(entries, type);
}

// FOps::operationProgress() tells nothing; the service does, and it is asked without waiting.
void OperationTracker::askForProgress()
{
    for (auto operation = m_running.cbegin(); operation != m_running.cend(); ++operation) {
        const FOpId id = operation.key();
        const QString prefix = QString::fromLatin1(VendorDomainPrefix);
        QDBusMessage question = QDBusMessage::createMethodCall(
            prefix + QStringLiteral(".vesk-fm.fops"), QStringLiteral("/"),
            prefix + QStringLiteral(".FileManager.FileOperation"), QStringLiteral("operationProgress"));
        question << id.stamp();
        auto *const watcher = new QDBusPendingCallWatcher(QDBusConnection::sessionBus().asyncCall(question), this);
        connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, id] {
            watcher->deleteLater();
            const QDBusPendingReply<int> percent = *watcher;
            if (percent.isValid() && percent.value() >= 0 && m_running.contains(id))
                Q_EMIT progress(tr("%1: %2 %").arg(m_running.value(id)).arg(percent.value()));
        });
    }
}
