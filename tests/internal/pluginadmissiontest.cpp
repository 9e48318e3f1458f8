// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <core/core_p.h>
#include <veskfm/core.h>

#include <QtTest>

using namespace VeskFM;

class PluginAdmissionTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        resetSecurityMode();
        setSecurityModeTool(QStringLiteral("/nonexistent"));
    }
    void admitsByTheMode();
    void asksOnceEvenIfThatFails();

private:
    /// Whether a plug-in with this list of modes may be loaded.
    static bool admits(const QJsonValue &modes)
    {
        return Core::shouldLoadPlugin({{"MetaData", QJsonObject{{"ZarnelModes", modes}}}});
    }
    void makeTool(TestTree &tree, const QByteArray &commands)
    {
        tree.write("tool", "#!/bin/sh\n" + commands + '\n');
        const QString tool = tree.path(QStringLiteral("tool"));
        QFile::setPermissions(tool, QFile::permissions(tool) | QFile::ExeOwner);
        setSecurityModeTool(tool);
        resetSecurityMode();
    }
};

void PluginAdmissionTest::admitsByTheMode()
{
    TestTree tree;
    makeTool(tree, "[ \"$*\" = get ] && echo 2");
    QVERIFY(!admits(QJsonArray{0, 1}));
    QVERIFY(admits(QJsonArray{0, 2}) && admits(QJsonArray{0, -1})
            && admits(QJsonArray{0, "1"})); // a text counts as all
    QVERIFY(admits(QJsonArray{}) && admits(1) && Core::shouldLoadPlugin({}));
    for (const char *commands :
         {"echo 3", "echo abc", "true", "echo 2; echo 2", "echo 2; exit 1", "echo 2; kill -KILL $$"}) {
        makeTool(tree, commands); // which leave the mode unknown
        QVERIFY2(admits(QJsonArray{0}), commands);
    }
}

void PluginAdmissionTest::asksOnceEvenIfThatFails()
{
    TestTree tree;
    makeTool(tree, "exit 1");
    QVERIFY(admits(QJsonArray{0}));
    tree.write("tool", "#!/bin/sh\necho 2\n");
    QVERIFY(admits(QJsonArray{0}));
    resetSecurityMode();
    QVERIFY(!admits(QJsonArray{0}));
}

QTEST_GUILESS_MAIN(PluginAdmissionTest)
#include "pluginadmissiontest.moc"
