// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#pragma once

#include <veskfm/entrypropertyset.h>
#include <veskfm/propsplugin.h>

#include <QList>
#include <QStringList>

#include <atomic>
#include <functional>

/// What happens to the sets of one plug-in, and how they answer. Outlives them.
struct SetRecord
{
    std::atomic<int> alive{0};
    std::atomic<int> prepared{0};
    std::atomic<int> refined{0};
    QList<bool> presentations; // the flag of each updatePresentation()
    bool canRefine = false;
    QStringList emblems;
    std::function<void(const VeskFM::Entry &)> onRefine; // on the refining thread
    std::function<QVariant(const VeskFM::Entry &)> onValue;
};

/// A property set that records its calls. Unless told otherwise its values are texts made of index, role and number of
/// preparations.
class RecordingSet : public VeskFM::EntryPropertySet
{
public:
    explicit RecordingSet(SetRecord *record)
        : m_record(record)
    {
        ++m_record->alive;
    }
    ~RecordingSet() override { --m_record->alive; }

    void prepare(const VeskFM::Entry &) override { ++m_record->prepared; }
    QVariant value(const VeskFM::Entry &entry, int index, int role) const override
    {
        if (m_record->onValue)
            return m_record->onValue(entry);
        return QStringLiteral("%1/%2/%3").arg(index).arg(role).arg(m_record->prepared);
    }
    bool canRefineData(const VeskFM::Entry &) const override { return m_record->canRefine; }
    void refineData(const VeskFM::Entry &entry) override
    {
        ++m_record->refined;
        if (m_record->onRefine)
            m_record->onRefine(entry);
    }
    QStringList emblems(const VeskFM::Entry &) const override { return m_record->emblems; }
    void updatePresentation(const VeskFM::Entry &, bool refined) override { m_record->presentations.append(refined); }

private:
    SetRecord *const m_record;
};

/// A plug-in of recording sets with a number of columns, of which only the first can be sorted by.
class RecordingPlugin : public VeskFM::PropsPlugin
{
public:
    explicit RecordingPlugin(int columns, SetRecord *record = nullptr)
        : m_columns(columns)
        , m_record(record)
    {
    }

    QString pluginName() const override { return QStringLiteral("recording"); }
    QString pluginDescription() const override { return {}; }
    QString propsPageTitle() const override { return {}; }
    int propertySetSize() const override { return m_columns; }
    QVariant propertyHeaderData(int index, int role) override { return index * 1000 + role; }
    bool isPropertySortable(int index) override { return index == 0; }
    VeskFM::EntryPropertySet *createPropertySet() const override
    {
        return m_record ? new RecordingSet(m_record) : nullptr;
    }
    bool providesEmblems() const override { return m_record && !m_record->emblems.isEmpty(); }

private:
    const int m_columns;
    SetRecord *const m_record; // null: makes no sets
};
