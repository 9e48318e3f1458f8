// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <services/singletonereleaser.h>
#include <veskfm/singletone.h>

#include <QtTest>

#include <functional>
#include <memory>
#include <thread>

using namespace VeskFM;

namespace
{

QStringList released;

class Resource : public Singletone
{
public:
    explicit Resource(const char *name)
        : m_name(QLatin1String(name))
    {
    }
    void release() override
    {
        released.append(m_name);
        if (onRelease)
            onRelease();
    }
    std::function<void()> onRelease;

private:
    const QString m_name;
};

} // namespace

class SingletoneTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void releasesOnceInOrderWhenTheApplicationQuits();
};

// One test, since the releaser runs once in a process.
void SingletoneTest::releasesOnceInOrderWhenTheApplicationQuits()
{
    // Before there is an application, and first touched by a thread that will be gone.
    std::unique_ptr<Resource> early;
    std::thread([&early] { early = std::make_unique<Resource>("early"); }).join();
    int argc = 1;
    char name[] = "singletonetest";
    char *argv[] = {name, nullptr};
    QCoreApplication application(argc, argv);

    Resource first("first");
    auto deletedByFirst = std::make_unique<Resource>("deleted by first");
    auto deleted = std::make_unique<Resource>("deleted");
    Resource last("last");
    SingletoneReleaser::instance()->add(&first);
    deleted.reset();
    first.onRelease = [&deletedByFirst] { deletedByFirst.reset(); };
    std::unique_ptr<Resource> late;
    last.onRelease = [&late] { late = std::make_unique<Resource>("late"); };

    QTimer::singleShot(0, &application, &QCoreApplication::quit);
    application.exec();
    QCOMPARE(released, QStringList({"early", "first", "last"}));
    QVERIFY(early->isFreed() && first.isFreed() && last.isFreed() && !late->isFreed());
    SingletoneReleaser::instance()->releaseSingletones();
    QCOMPARE(released.size(), 3);
}

int main(int argc, char **argv)
{
    SingletoneTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "singletonetest.moc"
