// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "findform.h"

#include "options.h"
#include "pluginwidgets.h"

#include <veskfm/entrymatchwidget.h>
#include <veskplatform/vfs.h>

#include <QCheckBox>
#include <QDir>
#include <QFileDialog>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QToolButton>

using namespace VeskFM;

namespace
{

QCheckBox *addCheckBox(QHBoxLayout *layout, const QString &name, const QString &text, bool on)
{
    auto *const box = new QCheckBox(text);
    box->setObjectName(name);
    box->setChecked(on);
    layout->addWidget(box);
    return box;
}

} // namespace

FindForm::FindForm(QWidget *parent)
    : QWidget(parent)
    , m_where(new QLineEdit(this))
    , m_names(new QLineEdit(this))
{
    auto *const layout = new QFormLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    m_names->setObjectName(QStringLiteral("names"));
    m_names->setPlaceholderText(tr("*.png;*.jpg or a part of the name"));
    m_names->setClearButtonEnabled(true);
    layout->addRow(tr("&Name:"), m_names);

    auto *const whereRow = new QHBoxLayout;
    m_where->setObjectName(QStringLiteral("where"));
    auto *const browseButton = new QToolButton(this);
    browseButton->setObjectName(QStringLiteral("browse"));
    browseButton->setIcon(QIcon::fromTheme(QStringLiteral("document-open-folder")));
    browseButton->setText(tr("…"));
    browseButton->setToolTip(tr("Choose the folder"));
    connect(browseButton, &QToolButton::clicked, this, &FindForm::browse);
    whereRow->addWidget(m_where, 1);
    whereRow->addWidget(browseButton);
    layout->addRow(tr("&Where:"), whereRow);
    if (auto *const label = qobject_cast<QLabel *>(layout->labelForField(whereRow)))
        label->setBuddy(m_where);

    auto *const options = new QHBoxLayout;
    m_subdirectories = addCheckBox(options, QStringLiteral("subdirectories"), tr("Sub&folders"), true);
    m_hidden = addCheckBox(options, QStringLiteral("hidden"), tr("&Hidden files"), false);
    m_archives = addCheckBox(options, QStringLiteral("archives"), tr("In &archives"), false);
    options->addStretch();
    layout->addRow(QString(), options);
    addPluginWidgets(layout);
}

void FindForm::addPluginWidgets(QFormLayout *layout)
{
    m_matchWidgets = addMatchWidgets(createFindWidgets(this), layout);
}

void FindForm::setStart(const Entry &start)
{
    m_start = start;
    m_where->setText(start.path());
}

FindQuery FindForm::query(const std::atomic<bool> *running) const
{
    FindQuery query;
    query.start = enteredStart();
    query.namePatterns = nameFilterPatterns(m_names->text());
    query.subdirectories = m_subdirectories->isChecked();
    query.hiddenEntries = m_hidden->isChecked();
    query.archives = m_archives->isChecked();
    for (VeskFM::EntryMatchValidator *validator : createValidators(m_matchWidgets, running))
        query.validators.emplace_back(validator);
    return query;
}

QString FindForm::startText() const
{
    return m_where->text();
}

void FindForm::focusNames()
{
    m_names->setFocus();
    m_names->selectAll();
}

void FindForm::browse()
{
    const QString chosen = QFileDialog::getExistingDirectory(this, tr("Where to look"), m_where->text());
    if (!chosen.isEmpty())
        setStart(VFS::ptr()->entry(chosen));
}

Entry FindForm::enteredStart() const
{
    QString path = m_where->text();
    if (path == m_start.path())
        return m_start;
    if (path == QLatin1String("~") || path.startsWith(QLatin1String("~/")))
        path.replace(0, 1, VFS::ptr()->homeEntry().path());
    const Entry entered = VFS::ptr()->entry(QDir::cleanPath(path));
    return entered.isDir() || entered.isPlace() ? entered : Entry();
}
