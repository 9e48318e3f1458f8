// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/core.h>
#include <veskfm/corepluginsmanager.h>
#include <veskfm/global.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>
#include <veskfm/propsplugin.h>
#include <veskfm/userpropcaps.h>

#include <QtTest>

#include <memory>

#include <unistd.h>

using namespace VeskFM;

namespace
{
QString pluginsDir;
bool admitAll = true;
} // namespace

// Both stand in front of the library's: the plug-ins' directory is fixed when the library is built, and the security mode
// belongs to the system.
QString Global::pluginsDirPath() const
{
    return pluginsDir;
}

bool Core::shouldLoadPlugin(const QJsonObject &metaData)
{
    return admitAll || metaData.value("className") != "TestPlugin";
}

class CorePluginsManagerTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        m_tree = std::make_unique<TestTree>();
        pluginsDir = m_tree->path();
        admitAll = true;
    }

    void cleanup()
    {
        delete CorePluginsManager::ptr(); // the next one loads anew
    }

    void ordersByPriority()
    {
        install("priority20");
        install("priority10");
        QCOMPARE(loadedFiles(), QStringList({"priority10.so", "priority20.so"}));
        QCOMPARE(CorePluginsManager::ptr()->pluginFileName(nullptr), QString());
        CorePluginsManager::ptr()->release();
        QCOMPARE(loadedFiles(), QStringList());
    }

    void skipsWhatTheUserMayNotUseOrTheSecurityModeRefuses()
    {
        install("priority10", "denied.so");
        install("priority20", "granted.so");
        UserPropCaps::ptr()->setAccessibility(getuid(), "denied.so", false);
        UserPropCaps::ptr()->setAccessibility(getuid() + 1, "granted.so", false);
        admitAll = false;
        QCOMPARE(loadedFiles(), QStringList());
        QVERIFY(!isMapped("granted.so"));
        cleanup();
        admitAll = true;
        QCOMPARE(loadedFiles(), QStringList("granted.so"));
        QVERIFY(isMapped("granted.so") && !isMapped("denied.so"));
    }

    void skipsWhatIsNoPlugin()
    {
        install("otherinterface");
        install("throwing");
        install("priority20", "UPPER.SO");
        install("priority20", "priority20.so.1");
        m_tree->add("directory.so/");
        m_tree->add("text.so");
        QVERIFY(QFile::copy(QStringLiteral(TEST_ORDINARY_LIBRARY), m_tree->path("ordinary.so")));
        install("priority10");
        const QString message = "Loading the plug-in \"" + m_tree->path("throwing.so") + "\" failed: no licence";
        QTest::ignoreMessage(QtWarningMsg, qPrintable(message));
        QCOMPARE(loadedFiles(), QStringList("priority10.so"));
    }

    void keepsTheLaterOfTwoWithOnePriority()
    {
        install("priority10");
        install("anotherpriority10");
        const QStringList listed = QDir(pluginsDir).entryList(QDir::Files, QDir::Unsorted); // as the directory has them
        QCOMPARE(loadedFiles(), QStringList(listed.last()));
        QVERIFY(isMapped(listed.first()));
    }

    void bearsPluginsThatAskForTheEngineWhileLoading()
    {
        install("reentrant");
        Props *props = Props::ptr();
        QVERIFY(props->propertyEnumerator());
        QCOMPARE(loadedFiles(), QStringList("reentrant.so"));
        delete props;
        QVERIFY(Props::ptr()->propertyEnumerator());
        delete Props::ptr();
    }

private:
    void install(const QString &plugin, const QString &asFile = {})
    {
        const QString file = plugin + QLatin1String(".so");
        const QString target = m_tree->path(asFile.isEmpty() ? file : asFile);
        QVERIFY(QFile::copy(QStringLiteral(TEST_PLUGINS_DIR "/") + file, target));
    }

    static QStringList loadedFiles()
    {
        QStringList files;
        const QList<PropsPlugin *> plugins = CorePluginsManager::ptr()->propsPlugins();
        for (PropsPlugin *plugin : plugins)
            files.append(CorePluginsManager::ptr()->pluginFileName(plugin));
        return files;
    }

    static bool isMapped(const QString &file)
    {
        QFile maps(QStringLiteral("/proc/self/maps"));
        return maps.open(QIODevice::ReadOnly) && maps.readAll().contains('/' + file.toUtf8() + '\n');
    }

    std::unique_ptr<TestTree> m_tree;
};

QTEST_MAIN(CorePluginsManagerTest)
#include "corepluginsmanagertest.moc"
