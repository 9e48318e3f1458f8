// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "testtree.h"

#include <veskfm/global.h>
#include <veskfm/settings.h>
#include <veskplatform/veskdirs.h>

#include <KUser>

#include <QtTest>

#include <memory>

using namespace VeskFM;

static int sessionKind = 0;

// In front of the platform's own.
Q_DECL_EXPORT int whatVeskSession()
{
    return sessionKind;
}

class SettingsTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        sessionKind = 0;
        QFile::remove(path());
        m_settings = std::make_unique<Settings>();
    }
    void cleanup() { m_settings.reset(); }
    void startsWithDefaults();
    void convertsWhatItReads();
    void settersWriteTheirKeyOnly();
    void noticesOtherProcesses();
    void readsAgainWithinOneClockTick();
    void leavesABrokenFileUntouchedUntilItIsRepaired();
    void keepsChangesWhileTheFolderCannotBeWritten();
    void hiddenToolBarActionsDefault();
    void kioskModes();
    void kioskExecs();
    void oneInstance();

private:
    static QString path()
    {
        // Once: to make such an object writes what others have not written yet.
        static const QString file = QSettings(QStringLiteral("tessaro"), QStringLiteral("vesk-fm")).fileName();
        return file;
    }
    static QByteArray content() { return contentOf(path()); }
    static void write(const QByteArray &text) // in place, as another process may do
    {
        QDir().mkpath(QFileInfo(path()).path());
        QFile file(path());
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    std::unique_ptr<Settings> m_settings;
};

void SettingsTest::startsWithDefaults()
{
    QCOMPARE(m_settings->trashSize(), 2048ULL);
    QCOMPARE(m_settings->shownThumbnailGroups(), QStringList("image"));
    QCOMPARE(m_settings->hiddenTreeItems(), m_settings->isAdmin() ? QStringList() : QStringList("FileSystem"));
    m_settings->setShowThumbnails(true);
    m_settings->setHiddenCategories({});
    m_settings->sync();
    QVERIFY(!QFile::exists(path())); // neither reading nor setting an equal value writes
}

void SettingsTest::convertsWhatItReads()
{
    write("a line of garbage spoils no other\n[Global]\nzarnelVersion=12\nserviceLifeTime=many\n"
          "enableUndoAction=garbage\nautoOpenEcryptedArchives=false\ntrashSize=18446744073709551615\n"
          "hiddenCategories=one\nhiddenTreeItems=one, two\nshownThumbnailGroups=@Invalid()\n");
    m_settings->refresh();
    QCOMPARE(m_settings->zarnelVersion(), 8);
    QCOMPARE(m_settings->serviceLifeTime(), 0);
    QCOMPARE(m_settings->enableUndoAction(), true); // the toolkit's rule
    QCOMPARE(m_settings->autoOpenEcryptedArchives(), false);
    QCOMPARE(m_settings->trashSize(), ~0ULL);
    QCOMPARE(m_settings->hiddenCategories(), QStringList("one"));
    QCOMPARE(m_settings->hiddenTreeItems(), QStringList({"one", "two"}));
    QCOMPARE(m_settings->shownThumbnailGroups(), QStringList());
}

void SettingsTest::settersWriteTheirKeyOnly()
{
    const auto effectOf = [this](void (*change)(Settings &)) { // the file, and the signals
        init();
        std::vector<std::unique_ptr<QSignalSpy>> spies;
        const QMetaObject &meta = Settings::staticMetaObject;
        for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
            if (meta.method(i).methodType() == QMetaMethod::Signal)
                spies.push_back(std::make_unique<QSignalSpy>(m_settings.get(), meta.method(i)));
        }
        change(*m_settings);
        m_settings->refresh();
        QByteArray effect = content().replace("[Global]\n", "");
        for (const auto &spy : spies)
            effect += spy->signal().repeated(spy->count());
        return effect;
    };
    QCOMPARE(effectOf([](Settings &s) { s.setServiceLifeTime(20000); }), "serviceLifeTime=20000\n");
    QCOMPARE(effectOf([](Settings &s) { s.setTrashSize(~0ULL); }), "trashSize=18446744073709551615\n");
    QCOMPARE(effectOf([](Settings &s) { s.setUseMetaInfoForDirIcons(false); }),
             "useMetaInfoForDirIcons=false\nuseMetaInfoForDirsChanged()");
    QCOMPARE(effectOf([](Settings &s) { s.setMaxImageFileSizeToShowThumbnailMB(5); }),
             "maxImageFileSizeToShowThumbnailMB=5\nmaxImageFileSizeToShowThumbnailChanged()");
    QCOMPARE(effectOf([](Settings &s) { s.setNumericSortingEnabled(false); }),
             "numericSorting=false\nnumericSortingEnabledChanged()");
    QCOMPARE(effectOf([](Settings &s) {
                 s.setHiddenTreeItems({"a", "b"});
             }),
             "hiddenTreeItems=a, b\nhiddenTreeItemsChanged()");
    QCOMPARE(effectOf([](Settings &s) { s.setFollowSmbToNetworkResources(true); }),
             "followSmbToNetworkResource=true\n");
}

void SettingsTest::noticesOtherProcesses()
{
    QSignalSpy thumbnails(m_settings.get(), &Settings::showThumbnailsChanged);
    QSignalSpy sizes(m_settings.get(), &Settings::showFileSizeInBytesChanged);
    write("[Global]\nshowThumbnails=false\n"); // created
    QVERIFY(thumbnails.wait());
    QVERIFY(!m_settings->showThumbnails());
    QSaveFile file(path()); // replaces it, as the toolkit does
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("[Global]\nshowThumbnails=false\nshowFileSizeInBytes=true\n");
    QVERIFY(file.commit());
    QVERIFY(sizes.wait());
    QCOMPARE(thumbnails.count(), 1);
    QVERIFY(m_settings->showFileSizeInBytes());
    for (const bool shown : {true, false, true}) { // most within the second of the former look
        write(shown ? "[Global]\nshowThumbnails=true\n" : "[Global]\nshowThumbnails=false\n");
        QVERIFY(thumbnails.wait());
        QCOMPARE(m_settings->showThumbnails(), shown);
    }
}

void SettingsTest::readsAgainWithinOneClockTick()
{
    const Global other; // an object on the same file keeps the toolkit's cache alive
    for (int i = 0; i < 20; ++i) {
        write("[Global]\nzarnelVersion=" + QByteArray::number(6 + i % 3) + '\n');
        m_settings->refresh();
        QCOMPARE(m_settings->zarnelVersion(), 6 + i % 3);
    }
    connect(m_settings.get(), &Settings::showThumbnailsChanged, this,
            [this] { m_settings->setLocaleSortingEnabled(true); });
    write("[Global]\nshowThumbnails=false\n");
    m_settings->refresh();
    QVERIFY2(content().contains("\nlocaleSorting=true\n"), content().constData()); // and not in a group below
}

void SettingsTest::leavesABrokenFileUntouchedUntilItIsRepaired()
{
    const QByteArray broken = "[Global\nshowThumbnails=false\ntrashSize=7\n";
    write(broken);
    Global global; // reads it too: the toolkit then tells nobody any more that it is broken
    QCOMPARE(global.settings()->status(), QSettings::FormatError);
    Settings settings;
    QSignalSpy sizes(&settings, &Settings::showFileSizeInBytesChanged);
    settings.setShowFileSizeInBytes(true);
    settings.setHiddenToolBarActions({"mine"});
    settings.addDefaultHiddenToolBarActions({"default"});
    settings.refresh();
    settings.sync();
    QCOMPARE(content(), broken);
    QVERIFY(settings.showThumbnails() && settings.showFileSizeInBytes());
    QCOMPARE(settings.hiddenToolBarActions(), QStringList("mine"));
    QCOMPARE(sizes.count(), 1);

    write("[Still broken\n" + broken);
    settings.sync();
    QCOMPARE(content(), "[Still broken\n" + broken);

    write("[Global]\nshowFileSizeInBytes=false\ntrashSize=7\n");
    QTRY_COMPARE(settings.trashSize(), 7ULL);
    QVERIFY2(content().contains("showFileSizeInBytes=true\n") && content().contains("hiddenToolBarActions=mine\n"),
             content().constData());
    QVERIFY(settings.showFileSizeInBytes());
    QCOMPARE(sizes.count(), 1);

    write(broken); // nor is it a reason to write it that another object of this process has something to write
    QSettings other(path(), QSettings::NativeFormat);
    other.setValue(QStringLiteral("key"), 1);
    settings.refresh();
    QCOMPARE(content(), broken);
}

void SettingsTest::keepsChangesWhileTheFolderCannotBeWritten()
{
    const QString folder = QFileInfo(path()).path();
    QVERIFY(QDir(folder).removeRecursively());
    QFile blocker(folder); // in the place of the folder: stops the super-user too
    QVERIFY(blocker.open(QIODevice::WriteOnly));
    m_settings->setShowFileSizeInBytes(true);
    m_settings->refresh();
    QVERIFY(m_settings->showFileSizeInBytes());
    QVERIFY(blocker.remove());
    m_settings->setTrashSize(7);
    QVERIFY(content().contains("\nshowFileSizeInBytes=true\n") && content().contains("\ntrashSize=7\n"));
}

void SettingsTest::hiddenToolBarActionsDefault()
{
    QSignalSpy changed(m_settings.get(), &Settings::hiddenToolBarActionsChanged);
    m_settings->addDefaultHiddenToolBarActions({"a"});
    m_settings->addDefaultHiddenToolBarActions({"b"});
    QVERIFY(m_settings->hiddenToolBarActions() == QStringList({"a", "b"}) && changed.count() == 2);
    m_settings->setHiddenToolBarActions({"c"});
    m_settings->addDefaultHiddenToolBarActions({"d"});
    QCOMPARE(m_settings->hiddenToolBarActions(), QStringList("c"));
    write("[Global]\n"); // gone from the file: the defaults again
    m_settings->refresh();
    QCOMPARE(m_settings->hiddenToolBarActions(), QStringList({"a", "b", "d"}));
}

void SettingsTest::kioskModes()
{
    const auto isKiosk = [this](int session, const QByteArray &line) {
        sessionKind = session;
        write("[Global]\n" + line + '\n');
        m_settings->refresh();
        return m_settings->isKioskMode();
    };
    const QByteArray user = "kiosk\\" + KUser(KUser::UseEffectiveUID).loginName().toUtf8();
    QVERIFY(isKiosk(7, "") && isKiosk(8, ""));
    QVERIFY(!isKiosk(0, "") && !isKiosk(9, ""));
    QVERIFY(isKiosk(0, user + "=true") && !isKiosk(0, user + "=false") && !isKiosk(0, "kiosk\\somebody-else=true"));
}

void SettingsTest::kioskExecs()
{
    sessionKind = 7;
    TestTree tree;
    tree.add("below/a.desktop", "[Desktop Entry]\nName=x\nType=Application\nExec=run a\n");
    tree.add("below/link.desktop", "[Desktop Entry]\nName=x\nType=Link\nExec=run b\n");
    tree.add("below/b.txt", "[Desktop Entry]\nName=x\nType=Application\nExec=run c\n");
    qputenv("VESK_KIOSK_CONFIG_DIR", tree.bytes());
    m_settings->refresh();
    QCOMPARE(m_settings->kioskExecs(), QStringList("run a"));
    tree.remove("below");
    QCOMPARE(m_settings->kioskExecs(), QStringList("run a")); // what was found first stays
}

void SettingsTest::oneInstance()
{
    QPointer<Settings> first(Settings::ptr()); // made before the application object, and watching since there is one
    QSignalSpy changed(first, &Settings::alternateRowColorsInTableChanged);
    write("[Global]\nalternateRowColorsInTable=false\n");
    QVERIFY(changed.wait());
    delete first;
    QVERIFY(Settings::ptr() && first.isNull()); // the new one is deleted at exit, after the application object
}

int main(int argc, char **argv)
{
    Settings::ptr();
    QCoreApplication application(argc, argv);
    SettingsTest test;
    return QTest::qExec(&test, argc, argv);
}

#include "settingstest.moc"
