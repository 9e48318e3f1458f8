// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <QAtomicInt>

#include <algorithm>
#include <atomic>

/// How far an operation is, and whether it is asked to stop. Written by its worker, read by any thread.
class Progress
{
public:
    static constexpr qint64 unitsPerNode = 4096; ///< what a file or directory costs beside its bytes

    void cancel() { m_cancel.storeRelaxed(1); }
    bool isCancelled() const { return m_cancel.loadRelaxed() != 0; }
    QAtomicInt *cancelFlag() { return &m_cancel; }

    void setTotal(qint64 units) { m_total = units; }
    void add(qint64 units) { m_done += units; }
    int percent() const ///< 0 to 100
    {
        const qint64 total = m_total;
        return total > 0 ? int(std::clamp<qint64>(m_done * 100 / total, 0, 100)) : 0;
    }

private:
    QAtomicInt m_cancel;
    std::atomic<qint64> m_total{0};
    std::atomic<qint64> m_done{0};
};
