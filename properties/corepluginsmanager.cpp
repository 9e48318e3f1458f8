// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/corepluginsmanager.h>

#include <veskfm/core.h>
#include <veskfm/global.h>
#include <veskfm/propsplugin.h>
#include <veskfm/userpropcaps.h>

#include <QDebug>
#include <QDir>
#include <QDirIterator>
#include <QMap>
#include <QPluginLoader>

#include <exception>

#include <unistd.h>

namespace VeskFM
{

CorePluginsManager *CorePluginsManager::m_ptr = nullptr;

CorePluginsManager *CorePluginsManager::ptr()
{
    return m_ptr ? m_ptr : new CorePluginsManager;
}

CorePluginsManager::CorePluginsManager()
{
    if (!m_ptr)
        m_ptr = this; // first of all: a plug-in that asks for the manager while it is loaded must not make another

    // One plug-in for each priority: the later one takes the place of the earlier, which stays loaded and known by name.
    QMap<int, PropsPlugin *> pluginByPriority;
    // In the directory's own order, which QDir would sort; nor may "*.so" match "X.SO".
    QDirIterator files(Global::ptr()->pluginsDirPath(), {QStringLiteral("*.so")},
                       QDir::Files | QDir::NoDotAndDotDot | QDir::CaseSensitive);
    while (files.hasNext()) {
        const QString filePath = files.next();
        if (!UserPropCaps::ptr()->isAccessible(getuid(), files.fileName()))
            continue;
        PropsPlugin *plugin = load(filePath);
        if (!plugin)
            continue;
        pluginByPriority.insert(plugin->orderPriority(), plugin);
        m_fileNames.insert(plugin, files.fileName());
    }
    m_plugins = pluginByPriority.values();
}

CorePluginsManager::~CorePluginsManager()
{
    if (m_ptr == this)
        m_ptr = nullptr;
}

PropsPlugin *CorePluginsManager::load(const QString &filePath)
{
    QPluginLoader loader(QFileInfo(filePath).absoluteFilePath());
    if (!Core::shouldLoadPlugin(loader.metaData()))
        return nullptr;
    try {
        return qobject_cast<PropsPlugin *>(loader.instance()); // no plug-in at all gives no instance
    } catch (const std::exception &error) {
        qWarning() << "Loading the plug-in" << filePath << "failed:" << error.what();
    } catch (...) {
        qWarning() << "Loading the plug-in" << filePath << "failed";
    }
    return nullptr;
}

QList<PropsPlugin *> CorePluginsManager::propsPlugins() const
{
    return m_plugins;
}

QString CorePluginsManager::pluginFileName(PropsPlugin *plugin) const
{
    return m_fileNames.value(plugin);
}

void CorePluginsManager::release()
{
    m_plugins.clear();
}

} // namespace VeskFM
