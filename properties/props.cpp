// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/props.h>

#include <veskfm/corepluginsmanager.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/textdigestenumerator.h>

namespace VeskFM
{

Props *Props::m_ptr = nullptr;

Props *Props::ptr()
{
    return m_ptr ? m_ptr : new Props;
}

Props::Props()
{
    if (!m_ptr)
        m_ptr = this; // first of all: a plug-in that asks for the engine while it is loaded must not make another
    m_plugins = CorePluginsManager::ptr()->propsPlugins();
    m_propertyEnumerator = std::make_unique<PropertyEnumerator>(m_plugins);
}

Props::~Props()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

PropertyEnumerator *Props::propertyEnumerator()
{
    return m_propertyEnumerator.get();
}

QString Props::displayedName(const Entry &entry) const
{
    return m_propertyEnumerator ? m_propertyEnumerator->displayedName(entry) : QString();
}

QIcon Props::icon(const Entry &entry) const
{
    return m_propertyEnumerator ? m_propertyEnumerator->icon(entry) : QIcon();
}

TextDigestEnumerator *Props::createTextDigestEnumerator()
{
    auto *enumerator = new TextDigestEnumerator(m_plugins);
    m_textDigestEnumerators.append(enumerator);
    return enumerator;
}

void Props::releaseTextDigestEnumerator(TextDigestEnumerator *enumerator)
{
    m_textDigestEnumerators.removeOne(enumerator);
    delete enumerator;
}

void Props::release()
{
    m_plugins.clear();
}

} // namespace VeskFM
