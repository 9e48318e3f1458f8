// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <core/core_p.h>
#include <veskfm/core.h>

#include <QFile>
#include <QJsonArray>
#include <QJsonObject>
#include <QTest>

using namespace VeskFM;

namespace
{

QJsonObject pluginFor(const QJsonValue &modes)
{
    return {{QStringLiteral("MetaData"), QJsonObject{{QStringLiteral("ZarnelModes"), modes}}}};
}

} // namespace

class PluginAdmissionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        resetSecurityMode();
        setSecurityModeTool(QStringLiteral("/nonexistent"));
    }
    void admits_data();
    void admits();
    void unknownModeAdmitsAll_data();
    void unknownModeAdmitsAll();
    void asksOnceEvenIfThatFails();
    void backtraceStartsWithItsCaller();

private:
    void makeTool(TestTree &tree, const QByteArray &commands)
    {
        tree.write("tool", "#!/bin/sh\n" + commands + '\n');
        const QString tool = tree.path(QStringLiteral("tool"));
        QFile::setPermissions(tool, QFile::permissions(tool) | QFile::ExeOwner);
        setSecurityModeTool(tool);
        resetSecurityMode();
    }
};

void PluginAdmissionTest::admits_data()
{
    QTest::addColumn<QJsonObject>("metaData");
    QTest::addColumn<bool>("admitted");
    QTest::newRow("other modes") << pluginFor(QJsonArray{0, 1}) << false;
    QTest::newRow("this mode") << pluginFor(QJsonArray{0, 2}) << true;
    QTest::newRow("all modes") << pluginFor(QJsonArray{0, -1}) << true;
    QTest::newRow("a text counts as all") << pluginFor(QJsonArray{0, QStringLiteral("1")}) << true;
    QTest::newRow("empty list") << pluginFor(QJsonArray{}) << true;
    QTest::newRow("no list") << pluginFor(1) << true;
    QTest::newRow("no plug-in at all") << QJsonObject() << true;
}

void PluginAdmissionTest::admits()
{
    TestTree tree;
    makeTool(tree, "[ \"$*\" = get ] && echo 2");
    QFETCH(const QJsonObject, metaData);
    QTEST(Core::shouldLoadPlugin(metaData), "admitted");
}

void PluginAdmissionTest::unknownModeAdmitsAll_data()
{
    QTest::addColumn<QByteArray>("commands");
    QTest::newRow("mode out of range") << QByteArray("echo 3");
    QTest::newRow("no number") << QByteArray("echo abc");
    QTest::newRow("silent") << QByteArray("true");
    QTest::newRow("two lines") << QByteArray("echo 2; echo 2");
    QTest::newRow("failed") << QByteArray("echo 2; exit 1");
    QTest::newRow("crashed") << QByteArray("echo 2; kill -KILL $$");
}

void PluginAdmissionTest::unknownModeAdmitsAll()
{
    QFETCH(const QByteArray, commands);
    TestTree tree;
    makeTool(tree, commands);
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0})));
}

void PluginAdmissionTest::asksOnceEvenIfThatFails()
{
    TestTree tree;
    makeTool(tree, "exit 1");
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0})));
    tree.write("tool", "#!/bin/sh\necho 2\n");
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0})));
    resetSecurityMode();
    QVERIFY(!Core::shouldLoadPlugin(pluginFor(QJsonArray{0})));
    setSecurityModeTool(tree.path()); // a directory
    resetSecurityMode();
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0})));
}

void PluginAdmissionTest::backtraceStartsWithItsCaller()
{
    const QStringList lines = backtrace();
    QVERIFY(lines.size() > 2);
    QVERIFY(lines[0].startsWith(QLatin1String("1: ")) && lines[1].startsWith(QLatin1String("2: ")));
    QVERIFY(lines[0].contains(QLatin1String("pluginadmissiontest"))); // not the routine itself
}

QTEST_GUILESS_MAIN(PluginAdmissionTest)
#include "pluginadmissiontest.moc"
