// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "settingsdialog.h"

#include "settingspage.h"

#include <veskfm/settings.h>
#include <veskfm/treeconfigmodel.h>

#include <QAction>
#include <QApplication>
#include <QDialogButtonBox>
#include <QTabWidget>
#include <QTreeView>
#include <QVBoxLayout>

#include <algorithm>
#include <limits>

using namespace VeskFM;

namespace
{

constexpr int lookAgainMs = 1000;
constexpr int longestLifeSeconds = 3600;
constexpr int mostMegabytes = 1024 * 1024;
constexpr int msPerSecond = 1000;

} // namespace

SettingsDialog *SettingsDialog::open(const QList<QAction *> &toolBarActions, QWidget *parent)
{
    if (Settings::ptr()->isKioskMode())
        return nullptr;
    SettingsDialog *dialog = nullptr;
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->isVisible() && qobject_cast<SettingsDialog *>(window))
            dialog = static_cast<SettingsDialog *>(window);
    }
    if (!dialog)
        dialog = new SettingsDialog(toolBarActions, parent);
    dialog->show();
    dialog->raise();
    dialog->activateWindow();
    return dialog;
}

SettingsDialog::SettingsDialog(const QList<QAction *> &toolBarActions, QWidget *parent)
    : QDialog(parent)
    , m_tabs(new QTabWidget(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setObjectName(QStringLiteral("settingsDialog"));
    setWindowTitle(tr("Settings"));
    m_tabs->setObjectName(QStringLiteral("pages"));
    m_tabs->setUsesScrollButtons(false); // wide enough for all titles
    addViewPage();
    addThumbnailsPage();
    addWindowPage(toolBarActions);
    addSidePanelPage();
    addBehaviourPage();
    addApplicationsPage();
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Close, this);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto *const layout = new QVBoxLayout(this);
    layout->addWidget(m_tabs);
    layout->addWidget(buttons);
    m_tabs->setFocus();
    followSettings();
}

SettingsPage *SettingsDialog::addPage(const QString &title)
{
    auto *const page = new SettingsPage(m_tabs);
    m_tabs->addTab(page, title);
    m_pages += page;
    return page;
}

void SettingsDialog::addViewPage()
{
    SettingsPage *const page = addPage(tr("&View"));
    page->addHeading(tr("Sorting"));
    page->addFlag("numericSorting", tr("Sort numbers in names by their value"), &Settings::isNumericSortingEnabled,
                  &Settings::setNumericSortingEnabled);
    page->addFlag("localeSorting", tr("Sort as the language does"), &Settings::isLocaleSortingEnabled,
                  &Settings::setLocaleSortingEnabled);
    page->addHeading(tr("Rows"));
    page->addFlag("alternateRowColorsInTable", tr("Shade every second row"), &Settings::alternateRowColorsInTable,
                  &Settings::setAlternateRowColorsInTable);
    page->addFlag("showFileSizeInBytes", tr("Show sizes in bytes"), &Settings::showFileSizeInBytes,
                  &Settings::setShowFileSizeInBytes);
    page->addHeading(tr("Folders with a description of their own"));
    page->addFlag("useMetaInfoForDirNames", tr("Use its name"), &Settings::useMetaInfoForDirNames,
                  &Settings::setUseMetaInfoForDirNames);
    page->addFlag("useMetaInfoForDirIcons", tr("Use its icon"), &Settings::useMetaInfoForDirIcons,
                  &Settings::setUseMetaInfoForDirIcons);
}

void SettingsDialog::addThumbnailsPage()
{
    Settings *const settings = Settings::ptr();
    SettingsPage *const page = addPage(tr("&Thumbnails"));
    page->addFlag("showThumbnails", tr("Show thumbnails"), &Settings::showThumbnails, &Settings::setShowThumbnails);
    page->addFlag("showThumbnailsInNetwork", tr("Also on the network"), &Settings::showThumbnailsInNetwork,
                  &Settings::setShowThumbnailsInNetwork);
    const SettingsPage::Names groups{{QStringLiteral("image"), tr("Pictures")},
                                     {QStringLiteral("video"), tr("Videos")},
                                     {QStringLiteral("audio"), tr("Music")},
                                     {QStringLiteral("text"), tr("Texts")},
                                     {QStringLiteral("application"), tr("Documents and other files")}};
    page->addShownNames(
        "shownThumbnailGroups", tr("&Of:"), groups, [settings] { return settings->shownThumbnailGroups(); },
        [settings](const QStringList &names) { settings->setShownThumbnailGroups(names); });
    page->addNumber(
        "maxImageFileSizeToShowThumbnailMB", tr("Pictures &up to:"), tr("MB"), mostMegabytes,
        [settings] { return settings->maxImageFileSizeToShowThumbnailMB(); },
        [settings](int size) { settings->setMaxImageFileSizeToShowThumbnailMB(size); }, tr("any size"));
}

void SettingsDialog::addWindowPage(const QList<QAction *> &toolBarActions)
{
    Settings *const settings = Settings::ptr();
    SettingsPage *const page = addPage(tr("&Window"));
    page->addFlag("showFullPathInWindowTitle", tr("Show the whole path in the title"),
                  &Settings::showFullPathInWindowTitle, &Settings::setShowFullPathInWindowTitle);
    page->addFlag("showScaleSliderInStatusBar", tr("Show the slider for the icon size"),
                  &Settings::showScaleSliderInStatusBar, &Settings::setShowScaleSliderInStatusBar);
    page->addFlag("showDiskSpaceInfoInStatusBar", tr("Show the free space"), &Settings::showDiskSpaceInfoInStatusBar,
                  &Settings::setShowDiskSpaceInfoInStatusBar);
    page->addFixedFlag("singleLocationBar", tr("One location bar for both panes"), &Settings::singleLocationBar);
    SettingsPage::Names names;
    for (const QAction *action : toolBarActions)
        names += {action->objectName(), action->text().remove(QLatin1Char('&'))};
    if (!names.isEmpty()) {
        page->addHiddenNames(
            "hiddenToolBarActions", tr("T&ool bar:"), names, [settings] { return settings->hiddenToolBarActions(); },
            [settings](const QStringList &hidden) { settings->setHiddenToolBarActions(hidden); });
    }
}

void SettingsDialog::addSidePanelPage()
{
    SettingsPage *const page = addPage(tr("Side &panel"));
    auto *const model = new TreeConfigModel(this);
    connect(model, &TreeConfigModel::changed, model, [model] {
        if (model->isModified())
            model->apply();
    });
    auto *const tree = new QTreeView(page);
    tree->setObjectName(QStringLiteral("hiddenTreeItems"));
    tree->setHeaderHidden(true);
    tree->setModel(model);
    tree->expandAll();
    page->addWide(tr("Shown in the side panel:"), tree);
    page->addFixedFlag("oldStylePlacesWidget", tr("Old look"), &Settings::oldStylePlacesWidget);
    page->addFixedFlag("placesCollapsible", tr("Groups can be collapsed"), &Settings::isPlacesCollapsible);
}

void SettingsDialog::addBehaviourPage()
{
    Settings *const settings = Settings::ptr();
    SettingsPage *const page = addPage(tr("&Behaviour"));
    page->addHeading(tr("Menu of a folder"));
    page->addFlag("showDeleteItemInDirViewCtxMenu", tr("Offer to delete"), &Settings::showDeleteItemInDirViewCtxMenu,
                  &Settings::setShowDeleteItemInDirViewCtxMenu);
    page->addFlag("showViewSettingsInDirViewCtxMenu", tr("Offer the settings of the view"),
                  &Settings::showViewSettingsInDirViewCtxMenu, &Settings::setShowViewSettingsInDirViewCtxMenu);
    page->addHeading(tr("Trash"));
    page->addFlag("allowTrashActionFromNetwork", tr("Also for files on the network"),
                  &Settings::allowTrashActionFromNetwork, &Settings::setAllowTrashActionFromNetwork);
    page->addNumber(
        "trashSize", tr("&Largest size:"), tr("MB"), std::numeric_limits<int>::max(),
        [settings] {
            return int(std::min<unsigned long long>(settings->trashSize(), std::numeric_limits<int>::max()));
        },
        [settings](int size) { settings->setTrashSize(static_cast<unsigned long long>(size)); });
    page->addHeading(tr("Other"));
    page->addFlag("followSmbToNetworkResource", tr("Open Windows shares among the network resources"),
                  &Settings::followSmbToNetworkResources, &Settings::setFollowSmbToNetworkResources);
    page->addNumber(
        "serviceLifeTime", tr("&Idle services end after:"), tr("s"), longestLifeSeconds,
        [settings] { return settings->serviceLifeTime() / msPerSecond; },
        [settings](int seconds) { settings->setServiceLifeTime(seconds * msPerSecond); });
    page->addFixedFlag("enableUndoAction", tr("Undo"), &Settings::enableUndoAction);
    page->addFixedFlag("autoOpenEcryptedArchives", tr("Open encrypted archives without asking"),
                       &Settings::autoOpenEcryptedArchives);
    page->addFixedFlag("fillMailtoSubjectFromAttachments", tr("Name attachments in the subject of a mail"),
                       &Settings::fillMailtoSubjectFromAttachments);
}

void SettingsDialog::addApplicationsPage()
{
    Settings *const settings = Settings::ptr();
    SettingsPage *const page = addPage(tr("&Applications"));
    const SettingsPage::Names categories{{QStringLiteral("AudioVideo"), tr("Sound and video")},
                                         {QStringLiteral("Development"), tr("Development")},
                                         {QStringLiteral("Education"), tr("Education")},
                                         {QStringLiteral("Game"), tr("Games")},
                                         {QStringLiteral("Graphics"), tr("Graphics")},
                                         {QStringLiteral("Network"), tr("Internet")},
                                         {QStringLiteral("Office"), tr("Office")},
                                         {QStringLiteral("Science"), tr("Science")},
                                         {QStringLiteral("Settings"), tr("Settings")},
                                         {QStringLiteral("System"), tr("System")},
                                         {QStringLiteral("Utility"), tr("Accessories")}};
    page->addHiddenNames(
        "hiddenCategories", tr("Offered &categories:"), categories, [settings] { return settings->hiddenCategories(); },
        [settings](const QStringList &hidden) { settings->setHiddenCategories(hidden); });
}

void SettingsDialog::followSettings()
{
    const auto load = [this] {
        for (SettingsPage *page : qAsConst(m_pages))
            page->load();
    };
    void (Settings::*const signalsOfChange[])() = {
        &Settings::useMetaInfoForDirsChanged,
        &Settings::showFullPathInWindowTitleChanged,
        &Settings::showScaleSliderInStatusBarChanged,
        &Settings::showDiskSpaceInfoInStatusBarChanged,
        &Settings::showThumbnailsChanged,
        &Settings::showThumbnailsInNetworkChanged,
        &Settings::shownThumbnailGroupsChanged,
        &Settings::maxImageFileSizeToShowThumbnailChanged,
        &Settings::numericSortingEnabledChanged,
        &Settings::localeSortingEnabledChanged,
        &Settings::showFileSizeInBytesChanged,
        &Settings::alternateRowColorsInTableChanged,
        &Settings::hiddenToolBarActionsChanged,
        &Settings::hiddenCategoriesChanged,
    };
    for (const auto signal : signalsOfChange)
        connect(Settings::ptr(), signal, this, load);
    connect(&m_timer, &QTimer::timeout, this, load);
    m_timer.start(lookAgainMs);
    load();
}
