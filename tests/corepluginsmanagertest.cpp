// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/core.h>
#include <veskfm/corepluginsmanager.h>
#include <veskfm/global.h>
#include <veskfm/propertyenumerator.h>
#include <veskfm/props.h>
#include <veskfm/propsplugin.h>
#include <veskfm/userpropcaps.h>

#include <QDir>
#include <QFile>
#include <QJsonObject>
#include <QTemporaryDir>
#include <QTest>

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
        m_dir = std::make_unique<QTemporaryDir>();
        pluginsDir = m_dir->path();
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
        PropertyEnumerator enumerator(CorePluginsManager::ptr()->propsPlugins());
        QCOMPARE(enumerator.count(), 2); // these have neither columns nor emblems nor sets
        QVERIFY(enumerator.propertySetsProvidingEmblems().isEmpty() && !enumerator.createPropertySet(1));
        CorePluginsManager::ptr()->release();
        QCOMPARE(loadedFiles(), QStringList());
    }

    void skipsWhatTheUserMayNotUse()
    {
        install("priority10", "denied.so");
        install("priority20", "granted.so");
        UserPropCaps::ptr()->setAccessibility(getuid(), "denied.so", false);
        UserPropCaps::ptr()->setAccessibility(getuid() + 1, "granted.so", false);
        QCOMPARE(loadedFiles(), QStringList("granted.so"));
        QVERIFY(isMapped("granted.so"));
        QVERIFY(!isMapped("denied.so"));
    }

    void skipsWhatTheSecurityModeRefuses()
    {
        install("priority10", "refused.so");
        admitAll = false;
        QCOMPARE(loadedFiles(), QStringList());
        QVERIFY(!isMapped("refused.so"));
    }

    void skipsWhatIsNoPlugin()
    {
        install("otherinterface");
        install("throwing");
        install("priority20", "UPPER.SO");
        install("priority20", "priority20.so.1");
        QVERIFY(QDir(pluginsDir).mkdir("directory.so"));
        QFile text(m_dir->filePath("text.so"));
        QVERIFY(text.open(QIODevice::WriteOnly) && text.write("no library") > 0);
        text.close();
        QVERIFY(QFile::copy(QStringLiteral(TEST_ORDINARY_LIBRARY), m_dir->filePath("ordinary.so")));
        install("priority10");
        QTest::ignoreMessage(
            QtWarningMsg,
            qPrintable("Loading the plug-in \"" + m_dir->filePath("throwing.so") + "\" failed: no licence"));
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
    void install(const QString &plugin, const QString &asFile = QString());
    static QStringList loadedFiles();
    static bool isMapped(const QString &file);

    std::unique_ptr<QTemporaryDir> m_dir;
};

void CorePluginsManagerTest::install(const QString &plugin, const QString &asFile)
{
    const QString source = QStringLiteral(TEST_PLUGINS_DIR "/") + plugin + QLatin1String(".so");
    const QString name = asFile.isEmpty() ? plugin + QLatin1String(".so") : asFile;
    QVERIFY(QFile::copy(source, m_dir->filePath(name)));
}

QStringList CorePluginsManagerTest::loadedFiles()
{
    QStringList files;
    const QList<PropsPlugin *> plugins = CorePluginsManager::ptr()->propsPlugins();
    for (PropsPlugin *plugin : plugins)
        files.append(CorePluginsManager::ptr()->pluginFileName(plugin));
    return files;
}

bool CorePluginsManagerTest::isMapped(const QString &file)
{
    QFile maps(QStringLiteral("/proc/self/maps"));
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains('/' + file.toUtf8() + '\n');
}

QTEST_MAIN(CorePluginsManagerTest)
#include "corepluginsmanagertest.moc"
