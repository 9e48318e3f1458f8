// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/entryviewparameters.h>
#include <veskfm/global.h>
#include <veskfm/settings.h>

#include <QtTest>

#include <atomic>
#include <memory>
#include <thread>

using namespace VeskFM;

class EntryViewParametersTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void firstUseOnAWorkerBelongsToTheApplication();
    void announcesChangesOnce();
    void followsTheSettings();
    void isReadWhileItChanges();
};

void EntryViewParametersTest::firstUseOnAWorkerBelongsToTheApplication()
{
    std::thread([] { EntryViewParameters::ptr(); }).join();
    QCOMPARE(EntryViewParameters::ptr()->thread(), QCoreApplication::instance()->thread());
}

void EntryViewParametersTest::announcesChangesOnce()
{
    EntryViewParameters views;
    QSignalSpy dirs(&views, &EntryViewParameters::useMetaInfoForDirsChanged);
    QSignalSpy numeric(&views, SIGNAL(numericSortingEnabledChnaged()));
    for (int i = 0; i < 2; ++i) {
        views.setUseMetaInfoForDirIcons(false);
        views.setNumericSortingEnabled(false);
    }
    QCOMPARE(dirs.count(), 1);
    QCOMPARE(numeric.count(), 1);
    views.setUseMetaInfoForDirNames(!views.useMetaInfoForDirNames());
    QCOMPARE(dirs.count(), 2); // one signal for both
}

void EntryViewParametersTest::followsTheSettings()
{
    Settings *const settings = Settings::ptr();
    settings->setMaxImageFileSizeToShowThumbnailMB(9);
    Global::ptr()->settings()->setValue(QStringLiteral("regularWindow/UsePinchZoom"), false);
    EntryViewParameters views;
    QSignalSpy sizes(&views, &EntryViewParameters::maxImageFileSizeToShowThumbnailChanged);
    QSignalSpy dirs(&views, &EntryViewParameters::useMetaInfoForDirsChanged);
    views.initFromSettings();
    QCOMPARE(views.maxImageFileSizeToShowThumbnailMB(), 9);
    QCOMPARE(sizes.count(), 1);
    QVERIFY(!views.isPinchZoomEnabled() && views.isKineticScrollingEnabled());

    views.initFromSettings(); // anew, not twice
    settings->setUseMetaInfoForDirIcons(false);
    settings->setShownThumbnailGroups({"video"});
    settings->setLocaleSortingEnabled(true);
    settings->setShowFileSizeInBytes(true);
    QVERIFY(!views.useMetaInfoForDirIcons() && views.isLocaleSortingEnabled() && views.showFileSizeInBytes());
    QCOMPARE(views.shownThumbnailGroups(), QStringList("video"));
    QCOMPARE(dirs.count(), 1);
    delete settings;
    views.setShowThumbnails(false); // goes on without them
}

void EntryViewParametersTest::isReadWhileItChanges()
{
    EntryViewParameters views;
    std::atomic<bool> done{false};
    std::atomic<int> odd{0};
    std::thread reader([&] {
        while (!done)
            odd += views.shownThumbnailGroups().isEmpty() || views.maxImageFileSizeToShowThumbnailMB() < 0;
    });
    for (int i = 0; i < 2000; ++i) {
        views.setShownThumbnailGroups({QString::number(i)});
        views.setMaxImageFileSizeToShowThumbnailMB(i);
    }
    done = true;
    reader.join();
    QCOMPARE(odd.load(), 0);
}

QTEST_GUILESS_MAIN(EntryViewParametersTest)
#include "entryviewparameterstest.moc"
