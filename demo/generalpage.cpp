// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "generalpage.h"

#include "entryvalues.h"
#include "printabletext.h"

#include <veskfm/core.h>
#include <veskfm/props.h>
#include <veskplatform/vfs.h>

#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtConcurrentRun>

#include <algorithm>

using namespace VeskFM;

namespace
{

constexpr int pictureSize = 48; // pixels
constexpr int separatorSize = 2;
enum Property { NameProperty, TypeProperty };

// Takes any length, and lets the text be selected and copied.
QLineEdit *newValueField(QWidget *parent)
{
    auto *const field = new QLineEdit(parent);
    field->setReadOnly(true);
    field->setFrame(false);
    field->setMinimumWidth(field->fontMetrics().averageCharWidth() * 50);
    QPalette palette = field->palette();
    palette.setBrush(QPalette::Base, Qt::transparent);
    field->setPalette(palette);
    return field;
}

void setFieldText(QLineEdit *field, const QString &text)
{
    if (field->text() == text)
        return;
    field->setText(text);
    field->setCursorPosition(0);
}

QString folderOf(const Entry &entry)
{
    return printableText(VFS::ptr()->parent(entry).path());
}

} // namespace

GeneralPage::GeneralPage(const EntryList &entries, QWidget *parent)
    : QWidget(parent)
    , m_layout(new QFormLayout)
    , m_icon(new QLabel(this))
    , m_name(newValueField(this))
{
    m_icon->setFixedSize(pictureSize, pictureSize);
    m_icon->setAlignment(Qt::AlignCenter);
    m_name->setObjectName(QStringLiteral("name"));
    m_name->setAccessibleName(tr("Name"));
    QFont font = m_name->font();
    font.setBold(true);
    m_name->setFont(font);
    auto *const top = new QHBoxLayout;
    top->addWidget(m_icon);
    top->addWidget(m_name, 1);
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(top);
    layout->addLayout(m_layout);
    layout->addStretch();
    if (entries.size() == 1)
        describeOne(entries.first());
    else
        describeSeveral(entries);
}

GeneralPage::~GeneralPage() = default;

QLineEdit *GeneralPage::addRow(const QString &name, const QString &title, const QString &text)
{
    QLineEdit *const field = newValueField(this);
    field->setObjectName(name);
    field->setAccessibleName(title);
    setFieldText(field, text);
    m_layout->addRow(tr("%1:").arg(title), field);
    return field;
}

void GeneralPage::describeOne(const Entry &entry)
{
    m_values = new EntryValues(entry, this);
    QLineEdit *const type = addRow(QStringLiteral("type"), tr("Type"), {});
    const auto showValues = [this, type] {
        setFieldText(m_name, printableText(m_values->value(NameProperty).toString()));
        setFieldText(type, m_values->value(TypeProperty).toString());
        m_icon->setPixmap(m_values->value(NameProperty, Qt::DecorationRole).value<QIcon>().pixmap(pictureSize));
    };
    connect(m_values, &EntryValues::changed, this, showValues);
    showValues();
    addRow(QStringLiteral("location"), tr("Location"), folderOf(entry));
    if (entry.isSymLink())
        addRow(QStringLiteral("target"), tr("Link to"), printableText(entry.symLinkTarget()));
    if (entry.isFile() || entry.isArchiveMountPoint()) {
        const QString bytes = locale().toString(entry.fileSize());
        addRow(QStringLiteral("size"), tr("Size"),
               tr("%1 (%2 bytes)").arg(Core::dataSizeAsString(entry.fileSize()), bytes));
    } else {
        countContents(EntryList(entry));
    }
    readTimes(entry);
}

void GeneralPage::describeSeveral(const EntryList &entries)
{
    setFieldText(m_name, tr("%1 entries").arg(locale().toString(entries.size())));
    m_icon->setPixmap(QIcon::fromTheme(QStringLiteral("edit-copy")).pixmap(pictureSize));
    const int folders =
        int(std::count_if(entries.cbegin(), entries.cend(), [](const Entry &entry) { return entry.isDir(); }));
    addRow(QStringLiteral("type"), tr("Type"),
           tr("%1 folders, %2 others").arg(locale().toString(folders), locale().toString(entries.size() - folders)));
    const QString folder = entries.first().path().section(QLatin1Char('/'), 0, -2);
    const bool together = std::all_of(entries.cbegin(), entries.cend(), [&folder](const Entry &entry) {
        const QString path = entry.path();
        return path.startsWith(folder) && path.lastIndexOf(QLatin1Char('/')) == folder.size();
    });
    addRow(QStringLiteral("location"), tr("Location"), together ? folderOf(entries.first()) : tr("several folders"));
    countContents(entries);
}

void GeneralPage::countContents(const EntryList &entries)
{
    m_contents = addRow(QStringLiteral("contents"), tr("Contents"), {});
    m_prefixSize = -1;
    connect(&m_description, &SelectionDescription::updated, this, &GeneralPage::showContents);
    m_description.describe(entries);
}

/// The description begins with what the first call brings, which stands above already.
void GeneralPage::showContents(const QString &description)
{
    if (m_prefixSize < 0)
        m_prefixSize = description.size();
    setFieldText(m_contents, description.mid(m_prefixSize + separatorSize));
}

void GeneralPage::readTimes(const Entry &entry)
{
    connect(&m_timesWatcher, &QFutureWatcherBase::finished, this, [this] { showTimes(m_timesWatcher.result()); });
    m_timesWatcher.setFuture(QtConcurrent::run(&FileTimes::of, entry));
}

void GeneralPage::showTimes(const FileTimes &times)
{
    const auto add = [this](const QString &name, const QString &title, const QDateTime &time) {
        if (time.isValid())
            addRow(name, title, locale().toString(time, QLocale::LongFormat));
    };
    add(QStringLiteral("created"), tr("Created"), times.created);
    add(QStringLiteral("modified"), tr("Modified"), times.modified);
    add(QStringLiteral("accessed"), tr("Accessed"), times.accessed);
}
