// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskplatform/entrylist.h>

#include <QList>
#include <QString>

namespace VeskFM
{

class PropsPlugin;

/// Collects the text digests of a selection from the plug-ins that offer them. Comes from
/// Props::createTextDigestEnumerator().
///
/// Thread: one worker at a time.
class VESKFM_EXPORT TextDigestEnumerator
{
public:
    explicit TextDigestEnumerator(const QList<PropsPlugin *> &plugins); ///< takes those with hasTextDigest()
    ~TextDigestEnumerator();

    /// Begins with another selection. Whoever owns @p running writes it atomically, false asks to stop; it must live until
    /// the last text() returned. Null means: never stopped.
    void start(const EntryList &entries, bool *running);
    int count() const; ///< digests that text() can be asked for; 0 before start()
    /// The digest @p index; may block. Empty when stopped, out of range, or when the plug-in has nothing to say.
    QString text(int index);

private:
    Q_DISABLE_COPY(TextDigestEnumerator)

    bool isStopped() const;

    QList<PropsPlugin *> m_plugins; // borrowed
    EntryList m_entries;
    bool m_neverStopped = true;
    bool *m_running = &m_neverStopped; // or the caller's
    bool m_started = false;
};

} // namespace VeskFM
