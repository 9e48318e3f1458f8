// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <core/core_p.h>
#include <veskfm/core.h>

#include <QtTest>

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
    void admits();
    void unknownModeAdmitsAll();
    void asksOnceEvenIfThatFails();

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

void PluginAdmissionTest::admits()
{
    TestTree tree;
    makeTool(tree, "[ \"$*\" = get ] && echo 2");
    QVERIFY(!Core::shouldLoadPlugin(pluginFor(QJsonArray{0, 1})));
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0, 2})));
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0, -1})));                  // all modes
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{0, QStringLiteral("1")}))); // a text counts as all
    QVERIFY(Core::shouldLoadPlugin(pluginFor(QJsonArray{})) && Core::shouldLoadPlugin(pluginFor(1)));
    QVERIFY(Core::shouldLoadPlugin({}));
}

void PluginAdmissionTest::unknownModeAdmitsAll()
{
    for (const char *commands :
         {"echo 3", "echo abc", "true", "echo 2; echo 2", "echo 2; exit 1", "echo 2; kill -KILL $$"}) {
        TestTree tree;
        makeTool(tree, commands);
        QVERIFY2(Core::shouldLoadPlugin(pluginFor(QJsonArray{0})), commands);
    }
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

QTEST_GUILESS_MAIN(PluginAdmissionTest)
#include "pluginadmissiontest.moc"
