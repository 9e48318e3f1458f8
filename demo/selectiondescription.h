// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QObject>
#include <QPointer>

namespace VeskFM
{
class EntryDescribeThread;
}

/// Describes entries in one line that grows while the plug-ins measure them. Never waits for a plug-in: one that does not
/// end is left alone, and as long as it goes on, texts stay as short as they begin.
class SelectionDescription : public QObject
{
    Q_OBJECT

public:
    explicit SelectionDescription(QObject *parent = nullptr);
    ~SelectionDescription() override;

    void describe(const VeskFM::EntryList &entries); ///< emits updated() before it returns
    void clear();                                    ///< describes nothing, without a signal

Q_SIGNALS:
    void updated(const QString &text);
    void finished(); ///< updated() does not come again, unless entries are described anew

private:
    void retire();
    void begin();

    VeskFM::EntryDescribeThread *m_thread = nullptr;  // owned
    QPointer<VeskFM::EntryDescribeThread> m_unending; // retired, still at work
    VeskFM::EntryList m_entries;
};
