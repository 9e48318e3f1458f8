// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskplatform/entrylist.h>

#include <QSplitter>

#include <memory>

class PanelTree;

namespace VeskFM
{
class PlacesModel;
class TreeModel;
} // namespace VeskFM

/// The places above, the tree of directories below.
class SidePanel : public QSplitter
{
    Q_OBJECT

public:
    explicit SidePanel(QWidget *parent = nullptr);
    ~SidePanel() override;

    void showDirectory(const VeskFM::Entry &directory); ///< opens the tree down to it and marks it
    void markDirectory();                               ///< again, when the cursor has been elsewhere
    void setShowHidden(bool show);
    PanelTree *places() const { return m_places; }
    PanelTree *tree() const { return m_tree; }

Q_SIGNALS:
    void opened(const VeskFM::Entry &entry, bool inOtherPane);
    void entriesDropped(const VeskFM::EntryList &entries, const VeskFM::Entry &target, Qt::DropAction action);
    void menuRequested(const VeskFM::Entry &entry, const QPoint &globalPosition);
    void removalRequested(const VeskFM::Entry &entry);
    void renamingRequested(const VeskFM::Entry &entry);

private:
    void adopt(PanelTree *tree);
    void showGroups();
    void showInPlaces(const VeskFM::Entry &directory);
    void showInTree(const VeskFM::Entry &directory);

    std::unique_ptr<VeskFM::PlacesModel> m_placesModel; // these two before their views
    std::unique_ptr<VeskFM::TreeModel> m_treeModel;
    PanelTree *m_places;
    PanelTree *m_tree;
    VeskFM::Entry m_directory; // that is marked
};
