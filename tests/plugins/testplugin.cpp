// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/corepluginsmanager.h>
#include <veskfm/props.h>
#include <veskfm/propsplugin.h>

#include <QObject>

#include <stdexcept>

#ifndef TESTPLUGIN_PRIORITY
#define TESTPLUGIN_PRIORITY 0
#endif

/// A plug-in that overrides as little as it can, or misbehaves.
#ifdef TESTPLUGIN_OTHER_INTERFACE
class TestPlugin : public QObject
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VESKFM_PROPSPLUGIN_IID) // says so, but is none
};
#else
class TestPlugin : public QObject,
                   public VeskFM::PropsPlugin
{
    Q_OBJECT
    Q_INTERFACES(VeskFM::PropsPlugin)
    Q_PLUGIN_METADATA(IID VESKFM_PROPSPLUGIN_IID)

public:
    TestPlugin()
    {
#ifdef TESTPLUGIN_THROWS
        throw std::runtime_error("no licence");
#endif
#ifdef TESTPLUGIN_REENTRANT
        if (VeskFM::Props::ptr()->propertyEnumerator() || !VeskFM::CorePluginsManager::ptr()->propsPlugins().isEmpty())
            throw std::runtime_error("not while loading");
#endif
    }
    QString pluginName() const override
    {
        return QStringLiteral("test");
    }
    QString pluginDescription() const override
    {
        return {};
    }
    QString propsPageTitle() const override
    {
        return {};
    }
    int orderPriority() override
    {
        return TESTPLUGIN_PRIORITY;
    }
};
#endif

#include "testplugin.moc"
