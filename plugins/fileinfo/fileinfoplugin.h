// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/propsplugin.h>

namespace VeskFM
{

/// The usual facts about files: the columns of FileInfoPropertySet, the total size of a selection, a page for the
/// permissions, and what to find and filter files by.
class FileInfoPlugin : public QObject,
                       public PropsPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID VESKFM_PROPSPLUGIN_IID FILE "fileinfo.json")
    Q_INTERFACES(VeskFM::PropsPlugin)

public:
    QString pluginName() const override;
    QString pluginDescription() const override;
    QString propsPageTitle() const override;
    int orderPriority() override;

    bool hasTextDigest() override;
    /// The total size of everything selected, for example "1.50 MB in 3 files"; see SelectionSize. Empty for a single
    /// file. Thread: a worker.
    QString textDigest(const EntryList &entries, bool *running) override;

    bool hasPropsWidgetFor(const EntryList &entries) override;
    PropsPluginWidget *createPropsWidget(const EntryList &entries, QWidget *parent) override;

    bool hasFindWidget() override;
    QList<QWidget *> createFindWidgets(QWidget *parent) override;   ///< text in files, size, time of the last change
    QList<QWidget *> createFilterWidgets(QWidget *parent) override; ///< size

    int propertySetSize() const override;
    QVariant propertyHeaderData(int index, int role) override;
    bool isPropertySortable(int index) override;
    EntryPropertySet *createPropertySet() const override;
};

} // namespace VeskFM
