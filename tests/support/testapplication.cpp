// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testapplication.h"

#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QtTest>

namespace
{

constexpr char program[] = R"(#!/bin/sh
text="$PWD
$DESKTOP_STARTUP_ID,$XDG_ACTIVATION_TOKEN
"
for argument; do text="$text<$argument>
"; done
printf '%s' "$text" >>"$0.starts"
)";

} // namespace

TestApplication::TestApplication(TestTree *tree, const QByteArray &name, const QByteArray &keys)
    : m_tree(tree)
    , m_name(name)
{
    addProgram(tree, name);
    const QDir directory(QStandardPaths::writableLocation(QStandardPaths::ApplicationsLocation));
    directory.mkpath(QStringLiteral("."));
    m_desktopFile = directory.filePath(QFile::decodeName(name) + ".desktop");
    QFile file(m_desktopFile);
    const QByteArray text = "[Desktop Entry]\nType=Application\nName=" + name + '\n' + keys;
    if (!file.open(QIODevice::WriteOnly) || file.write(QByteArray(text).replace('@', tree->bytes(name))) < 0)
        qFatal("cannot write %s", qUtf8Printable(m_desktopFile));
}

void TestApplication::addProgram(TestTree *tree, const QByteArray &name)
{
    tree->add(name, program);
    QFile::setPermissions(tree->path(QFile::decodeName(name)), QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

QByteArray TestApplication::starts(const TestTree &tree, const QByteArray &name)
{
    return contentOf(tree.path(QFile::decodeName(name) + ".starts"));
}

QByteArray TestApplication::takeStart()
{
    if (!QTest::qWaitFor([this] { return !starts().isEmpty(); }))
        qWarning("%s was not started", m_name.constData());
    const QByteArray text = starts();
    QFile::remove(m_tree->path(QFile::decodeName(m_name) + ".starts"));
    return text;
}
