// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/export.h>
#include <veskfm/modelfilter.h>
#include <veskplatform/entrylist.h>

#include <QAbstractItemModel>
#include <QPair>

#include <memory>

class QDataStream;

namespace VeskFM
{

class ModelItem;
class ModelPrivate;

/// The contents of one directory as rows, kept true by what the VFS tells about it.
///
/// Rows arrive from the event loop after rebuild(), in one go; they are already there when rowsInserted() announces
/// them. Each shows an entry that the filter accepts. Columns are the properties of the property engine, one each in
/// TableMode. Values that take long come later: views see a layout change when they are ready.
///
/// The internal pointer of a valid index is its ModelItem.
///
/// Thread: the GUI thread. Errors: what cannot be listed shows no rows; nothing is reported.
class VESKFM_EXPORT Model : public QAbstractItemModel
{
    Q_OBJECT

public:
    /// What the rows are for. The library itself acts on DesktopMode (places may be dragged) and TableMode.
    enum Mode : qint32 {
        InvalidMode = 0,
        DesktopMode = 1,
        IconMode = 2,
        TreeMode = 4,
        TableMode = 8,
        ListMode = 16,
        PlacesMode = 32
    };
    Q_ENUM(Mode)

    enum SortOrder : qint32 { KeepOrder = 0, Ascending = 1, Descending = 2 };
    Q_ENUM(SortOrder)

    enum Role {
        SortKeyRole = 256,  ///< what rows are sorted by; in a header the internal property name
        BadEntryRole = 257, ///< bool, of the "Size" column: the entry could not be read
        ListingRole = 258,  ///< bool: the directory is being listed
        SizeValueRole = 259 ///< bytes, whatever the column
    };

    Model(Mode mode, QFlags<ModelFilter::EntryFilter> filters, QObject *parent);
    ~Model() override;

    QModelIndex index(int row, int column, const QModelIndex &parent = QModelIndex()) const override;
    QModelIndex parent(const QModelIndex &index) const override;
    int rowCount(const QModelIndex &parent = QModelIndex()) const override;
    int columnCount(const QModelIndex &parent = QModelIndex()) const override;
    bool hasChildren(const QModelIndex &parent = QModelIndex()) const override;
    QVariant data(const QModelIndex &index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role = Qt::DisplayRole) const override;
    QStringList mimeTypes() const override;
    QMimeData *mimeData(const QModelIndexList &indexes) const override;
    /// Takes nothing: views drop through the file operations.
    bool dropMimeData(const QMimeData *data, Qt::DropAction action, int row, int column,
                      const QModelIndex &parent) override;
    Qt::DropActions supportedDropActions() const override;
    void fetchMore(const QModelIndex &parent) override;
    bool canFetchMore(const QModelIndex &parent) const override;
    Qt::ItemFlags flags(const QModelIndex &index) const override;
    void sort(int column, Qt::SortOrder order = Qt::AscendingOrder) override;

    /// The indexes on the way to @p entry, top first. In a flat model it is one at most, and an invalid one when the
    /// directory shown lies on the way but has no row for the entry (yet); a directory not yet listed starts listing.
    virtual QModelIndexList pathIndexList(const Entry &entry);
    virtual QModelIndex indexOfEntry(const Entry &entry);

    using QAbstractItemModel::beginInsertRows;
    using QAbstractItemModel::endInsertRows;
    using QObject::parent;

    /// Shows @p entry; a null one lists the shown directory again. Ignored when the entry does not exist.
    void rebuild(const Entry &entry);
    void rebuild();
    void rebuildWithMode(Mode mode); ///< stores the mode and tells nobody: views that depend on it refresh themselves
    void rebuildWithEntryFilters(QFlags<ModelFilter::EntryFilter> filters);
    /// Sorts by property @p index; -1 keeps the property, KeepOrder the order. Ignored when it is not sortable.
    void rebuildWithPropertySortIndex(int index, SortOrder order);
    void setShowHiddenEntries(bool show);
    void setNameFilters(const QStringList &patterns);
    void setNameFiltersForFilesOnly(bool filesOnly);
    void flushFilter(); ///< lists again if the filter was changed from outside
    void setShowDotDot(bool show);
    void setArchivesAreFiles(bool asFiles); ///< takes effect with the next listing
    void refresh();                         ///< lists the shown directory again, row by row
    void updatePresentation();
    /// The emblem switches are those of the property engine: they change all models, but only this one repaints.
    void setShowLinkEmblem(bool show);
    void setShowPropertyEmblems(bool show);
    bool showLinkEmblem() const;
    bool showPropertyEmblems() const;

    Mode mode() const;
    QFlags<ModelFilter::EntryFilter> entryFilters() const;
    bool showHiddenEntries() const;
    bool showDotDot() const;
    QStringList nameFilters() const;
    SortOrder sortOrder() const;
    int propertySortIndex() const;
    bool isNumericSortingEnabled() const;
    bool isLocaleSortingEnabled() const;
    ModelFilter &filter(); ///< call flushFilter() after changing it
    const ModelFilter &filter() const;

    QStringList propertyNames() const; ///< translated, by property number
    QStringList internalPropertyNames() const;
    QString internalPropertyName(int index) const;         ///< empty when out of range
    int propertyIndex(const QString &name) const;          ///< of an internal name; -1 when unknown
    QList<QPair<QString, int>> sortableProperties() const; ///< translated name and property number

    Entry actualRootEntry() const;                      ///< the shown directory; null before the first rebuild()
    Entry entryByIndex(const QModelIndex &index) const; ///< the shown directory for an invalid index
    EntryList indexesToEntries(const QModelIndexList &indexes) const; ///< of those in column 0
    bool isHiddenChild(const Entry &entry) const;                     ///< it or an ancestor is hidden

Q_SIGNALS:
    void updatingStarted();                     ///< for users of the class; the library does not emit it
    void updatingFinished();                    ///< likewise
    void updated(const QModelIndex &index);     ///< likewise
    void dirListed(const VeskFM::Entry &entry); ///< the rows of @p entry are complete
    void sortingChanged(int sortIndex, VeskFM::Model::SortOrder sortOrder);

protected:
    /// For kinds of models that replace steps of the private part. Takes ownership of @p d.
    Model(ModelPrivate &d, Mode mode, QFlags<ModelFilter::EntryFilter> filters, QObject *parent);

    const std::unique_ptr<ModelPrivate> d;

private:
    Q_DISABLE_COPY(Model)
    friend class ModelItem;
    friend class ModelPrivate;
};

/// A mode travels as one 32-bit integer, whatever its value.
VESKFM_EXPORT QDataStream &operator<<(QDataStream &stream, const Model::Mode &mode);
VESKFM_EXPORT QDataStream &operator>>(QDataStream &stream, Model::Mode &mode);

} // namespace VeskFM
