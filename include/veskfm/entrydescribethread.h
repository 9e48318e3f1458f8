// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/thread.h>
#include <veskplatform/entrylist.h>

#include <QMutex>

class QTimer;

namespace VeskFM
{

class TextDigestEnumerator;

/// Describes a selection in one line, which grows while the text digests of the plug-ins become ready in the background.
///
/// Thread: that which made it; only run() is the worker's. Errors: a digest that throws adds nothing, and a warning.
class VESKFM_EXPORT EntryDescribeThread : public Thread
{
    Q_OBJECT

public:
    explicit EntryDescribeThread(QObject *parent = nullptr);
    ~EntryDescribeThread() override; ///< stops

    /// Describes @p entries instead of what was described before: announces their count, or the name of a single one
    /// with the size of a file, before it returns. The digests begin with the event loop or, if there is a directory
    /// among the entries, a second later: somebody who only walks through a list causes no work.
    void describe(const EntryList &entries);
    /// Stops the background part and waits until it has ended. Digests that are not yet begun are left out; one that
    /// ignores its running flag holds this up until it returns.
    void stop();
    /// As stop(), but returns at once: for somebody who cannot wait for a digest that takes its time. finished() tells of
    /// the end. Until then neither describe() nor the destruction of the object can do without waiting.
    void cancel();

Q_SIGNALS:
    /// The text so far. While work goes on it comes every 100 ms with an animation behind; the last one is plain.
    void descriptionUpdated(const QString &data);
    /// The background part has ended, whether or not it was stopped. Not for one that another describe() replaced.
    void finished();

public Q_SLOTS:
    void relaxationTimeout(); ///< begins the background part
    void animationTimeout();  ///< takes the animation one step further

protected:
    void run() override;

private:
    void conclude();
    bool isUnderWay() const;
    QString description() const;
    void setDescription(const QString &text);
    void setRunning(bool running);
    bool isStopRequested() const;

    EntryList m_entries; // written only while the thread does not run
    mutable QMutex m_descriptionMutex;
    QString m_description;                 // guarded by m_descriptionMutex
    bool m_running = false;                // written and read atomically: digests get a plain bool
    TextDigestEnumerator *const m_digests; // from Props, given back to it; the worker's while the thread runs
    QTimer *const m_relaxationTimer;
    QTimer *const m_animationTimer;
    int m_animationStep = 0;
    int m_runs = 0;    // begun
    int m_endings = 0; // told by the thread so far
};

} // namespace VeskFM
