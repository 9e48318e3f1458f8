// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "mainwindow.h"
#include "pane.h"
#include "paneltree.h"
#include "sidepanel.h"
#include "testtree.h"

#include <veskfm/clipboard.h>

#include <QtTest>
#include <QtWidgets>

using namespace VeskFM;

/// The file manager's window as a user drives it, with keys and drops.
class WindowTest : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        window = std::make_unique<MainWindow>();
        window->show();
        QVERIFY(QTest::qWaitForWindowActive(window.get()));
    }
    void cleanup() { window.reset(); }
    void goesBackAndOutOfWhatIsDeleted()
    {
        TestTree tree({"a/b/file"});
        open(tree.entry("a"));
        open(tree.entry("a/b"));
        press(Qt::Key_Left, Qt::AltModifier);
        QCOMPARE(here(), tree.path("a"));
        tree.remove("a");
        QTRY_COMPARE(here(), tree.path());
        press(Qt::Key_Left, Qt::AltModifier); // to where nothing is: it stays, and the window with it
        QCOMPARE(here(), tree.path());
    }

    void selectsAllButTheParentInIcons()
    {
        TestTree tree({"1", "2", "3"});
        open(tree.entry());
        press(Qt::Key_2, Qt::ControlModifier);
        press(Qt::Key_A, Qt::ControlModifier);
        QCOMPARE(fileNames(window->activePane()->views()->selectedEntries()), QStringList({"1", "2", "3"}));
    }

    void treeFollowsThePane()
    {
        TestTree tree({"deep/er/and/deeper/file"});
        PanelTree *const panel = window->sidePanel()->tree();
        const Entry here = tree.entry("deep/er/and/deeper");
        open(here);
        QCOMPARE(panel->currentEntry(), here);
        QTRY_VERIFY(
            panel->entryAt(panel->viewport()->rect().intersected(panel->visualRect(panel->currentIndex())).center())
            == here);
        QTRY_VERIFY(panel->expanderRect(panel->currentIndex()).isEmpty()); // a leaf, once it has been painted
    }

    void droppedDirectoryBecomesAFavorite()
    {
        TestTree tree({"kept/", "file"});
        PanelTree *const places = window->sidePanel()->places();
        QTRY_VERIFY(places->visualRect(places->model()->index(0, 0)).isValid());
        const QPoint point = places->visualRect(places->model()->index(0, 0)).center(); // of the heading
        for (const char *name : {"file", "kept"}) {
            const std::unique_ptr<QMimeData> data(Clipboard::ptr()->dragMimeData(EntryList(tree.entry(name))));
            QDragEnterEvent enter(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
            QDropEvent drop(point, Qt::CopyAction, data.get(), Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(places->viewport(), &enter);
            QCoreApplication::sendEvent(places->viewport(), &drop);
        }
        QTRY_COMPARE(fileNames(VFS::ptr()->childs(VFS::ptr()->favoritesEntry(), {}, nullptr)), QStringList("kept"));
    }

private:
    void open(const Entry &directory)
    {
        QSignalSpy listed(window->model(), &Model::dirListed);
        window->openDirectory(directory);
        QVERIFY(listed.wait());
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) { QTest::keyClick(window.get(), key, modifiers); }
    QString here() const { return window->activePane()->directory().path(); }
    std::unique_ptr<MainWindow> window;
};

QTEST_MAIN(WindowTest)
#include "windowtest.moc"
