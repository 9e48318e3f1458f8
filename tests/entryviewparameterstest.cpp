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
    void followsTheSettings();
    void isReadWhileItChanges();
};

void EntryViewParametersTest::firstUseOnAWorkerBelongsToTheApplication()
{
    std::thread([] { EntryViewParameters::ptr(); }).join();
    QCOMPARE(EntryViewParameters::ptr()->thread(), QCoreApplication::instance()->thread());
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
    QSignalSpy locale(&views, SIGNAL(localeSortingEnabledChnaged()));
    settings->setUseMetaInfoForDirIcons(false);
    settings->setUseMetaInfoForDirNames(!settings->useMetaInfoForDirNames());
    settings->setLocaleSortingEnabled(true);
    views.setLocaleSortingEnabled(true);
    QVERIFY(!views.useMetaInfoForDirIcons() && views.isLocaleSortingEnabled());
    QCOMPARE(dirs.count(), 2); // one signal for both
    QCOMPARE(locale.count(), 1);
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
