// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/singletone.h>

#include <QHash>
#include <QList>
#include <QString>

namespace VeskFM
{

class PropsPlugin;

/// The property plug-ins of this process. They are the "*.so" files of Global::pluginsDirPath() that the user may use
/// (UserPropCaps, by file name) and the security mode admits (Core::shouldLoadPlugin()). Anything else there is skipped
/// without a message.
///
/// Thread: GUI.
class VESKFM_EXPORT CorePluginsManager : public Singletone
{
public:
    static CorePluginsManager *ptr(); ///< loads the plug-ins on first use
    CorePluginsManager();
    ~CorePluginsManager() override;

    /// Ascending by PropsPlugin::orderPriority(), one for each priority: the one that the directory lists last. The
    /// plug-ins belong to the loader and stay for the life of the process.
    QList<PropsPlugin *> propsPlugins() const;
    /// The name, without its directory, of the file that @p plugin came from; empty for an unknown one. Plug-ins that lost
    /// their priority to another are known.
    QString pluginFileName(PropsPlugin *plugin) const;
    void release() override; ///< empties propsPlugins()

private:
    static PropsPlugin *load(const QString &filePath); // null for what is no property plug-in

    static CorePluginsManager *m_ptr;

    QList<PropsPlugin *> m_plugins;
    QHash<PropsPlugin *, QString> m_fileNames;
};

} // namespace VeskFM
