// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/textdigestenumerator.h>

#include <veskfm/propsplugin.h>

#include <QDebug>

#include <exception>

namespace VeskFM
{

TextDigestEnumerator::TextDigestEnumerator(const QList<PropsPlugin *> &plugins)
{
    for (PropsPlugin *plugin : plugins) {
        if (plugin->hasTextDigest())
            m_plugins.append(plugin);
    }
}

TextDigestEnumerator::~TextDigestEnumerator() = default;

void TextDigestEnumerator::start(const EntryList &entries, bool *running)
{
    m_entries = entries;
    m_neverStopped = true;
    m_running = running ? running : &m_neverStopped;
    m_started = true;
}

int TextDigestEnumerator::count() const
{
    return m_started ? m_plugins.size() : 0;
}

QString TextDigestEnumerator::text(int index)
{
    if (index < 0 || index >= count() || isStopped())
        return {};
    PropsPlugin *plugin = m_plugins.at(index);
    QString digest;
    try {
        digest = plugin->textDigest(m_entries, m_running);
    } catch (const std::exception &error) {
        qWarning() << "The text digest of" << plugin->pluginName() << "failed:" << error.what();
    } catch (...) {
        qWarning() << "The text digest of" << plugin->pluginName() << "failed";
    }
    return isStopped() ? QString() : digest; // what a stopped plug-in returns is only a part
}

bool TextDigestEnumerator::isStopped() const
{
    return !__atomic_load_n(m_running, __ATOMIC_ACQUIRE); // a plain bool, as the plug-in interface has it
}

} // namespace VeskFM
