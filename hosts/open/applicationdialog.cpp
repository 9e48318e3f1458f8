// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationdialog.h"

#include <veskfm/mimerelatedsettings.h>

#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeDatabase>
#include <QPushButton>
#include <QSet>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

using namespace VeskFM;

namespace
{

constexpr int applicationRole = Qt::UserRole; // an AppInfo

QStringList allTypes()
{
    QStringList names;
    const QList<QMimeType> types = QMimeDatabase().allMimeTypes();
    for (const QMimeType &type : types)
        names.append(type.name());
    return names;
}

} // namespace

ApplicationDialog::ApplicationDialog(const EntryList &entries, const LaunchContext &context)
    : m_entries(entries)
    , m_context(context)
    , m_type(new QLineEdit(this))
    , m_applications(new QTreeWidget(this))
    , m_command(new QLineEdit(this))
    , m_always(new QCheckBox(tr("Use it always for this type"), this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    const bool opens = !m_entries.isEmpty();
    setWindowTitle(opens ? tr("Open With") : tr("Applications"));
    if (opens) {
        m_type->setText(typeForOpening(m_entries.first()));
        m_type->setReadOnly(true);
    } else {
        m_type->setText(QStringLiteral("text/plain"));
        m_type->setCompleter(new QCompleter(allTypes(), this));
        connect(m_type, &QLineEdit::textChanged, this, &ApplicationDialog::fillApplications);
        m_always->setChecked(true);
        m_always->hide();
    }
    m_applications->setHeaderHidden(true);
    m_applications->setRootIsDecorated(false);
    m_applications->setIconSize(QSize(22, 22));
    m_command->setPlaceholderText(tr("or a command line"));

    auto *const browseButton = new QToolButton(this);
    browseButton->setText(QStringLiteral("…"));
    browseButton->setToolTip(tr("Choose a program"));
    auto *const command = new QHBoxLayout;
    command->addWidget(m_command);
    command->addWidget(browseButton);
    auto *const form = new QFormLayout;
    if (opens) {
        const QString name = m_entries.first().fileName();
        form->addRow(tr("Open:"), new QLabel(m_entries.size() == 1 ? name : tr("%1 files").arg(m_entries.size())));
    }
    form->addRow(tr("Type:"), m_type);
    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(opens ? tr("Open") : tr("Set as Default"));
    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_applications);
    layout->addLayout(command);
    layout->addWidget(m_always);
    layout->addWidget(buttons);

    connect(browseButton, &QAbstractButton::clicked, this, &ApplicationDialog::browse);
    connect(buttons, &QDialogButtonBox::accepted, this, &ApplicationDialog::apply);
    connect(buttons, &QDialogButtonBox::rejected, this, &QWidget::close);
    connect(m_applications, &QTreeWidget::itemActivated, this, &ApplicationDialog::apply);
    fillApplications();
    const QSize size = MimeRelatedSettings().applicationDialogSize();
    resize(size.isValid() ? size : QSize(420, 460));
    m_applications->setFocus();
    show();
    activateWindow();
}

ApplicationDialog::~ApplicationDialog()
{
    MimeRelatedSettings().setApplicationDialogSize(size());
}

void ApplicationDialog::fillApplications()
{
    m_applications->clear();
    const GAppList fitting = Associations::allFor(m_type->text());
    QSet<QString> shown;
    for (const GAppPtr &app : fitting)
        shown.insert(QString::fromUtf8(g_app_info_get_id(app.get())));
    GAppList others = Associations::all();
    others.erase(std::remove_if(others.begin(), others.end(),
                                [&shown](const GAppPtr &app) {
                                    return shown.contains(QString::fromUtf8(g_app_info_get_id(app.get())));
                                }),
                 others.end());
    addGroup(tr("For this type"), fitting);
    addGroup(tr("Others"), others);
    m_applications->expandAll();
    if (!fitting.empty())
        m_applications->setCurrentItem(m_applications->topLevelItem(0)->child(0));
}

void ApplicationDialog::addGroup(const QString &title, const GAppList &apps)
{
    if (apps.empty())
        return;
    auto *const group = new QTreeWidgetItem(m_applications, {title});
    group->setFlags(Qt::ItemIsEnabled);
    for (const GAppPtr &app : apps) {
        const AppInfo info = Associations::describe(app.get());
        auto *const item = new QTreeWidgetItem(group, {info.name()});
        item->setIcon(0, QIcon::fromTheme(info.icon()));
        item->setToolTip(0, info.comment());
        item->setData(0, applicationRole, QVariant::fromValue(info));
    }
}

void ApplicationDialog::browse()
{
    const QString program =
        QFileDialog::getOpenFileName(this, tr("Choose a program"), MimeRelatedSettings().preferredApplicationPath());
    if (program.isEmpty())
        return;
    MimeRelatedSettings().setPreferredApplicationPath(QFileInfo(program).path());
    m_command->setText(program.contains(QLatin1Char(' ')) ? QLatin1Char('"') + program + QLatin1Char('"') : program);
}

/// What was typed, else what is selected; null for neither.
GAppPtr ApplicationDialog::chosen() const
{
    const QString command = m_command->text().trimmed();
    AppInfo info;
    if (!command.isEmpty())
        info.setExec(command);
    else if (const QTreeWidgetItem *const item = m_applications->currentItem())
        info = item->data(0, applicationRole).value<AppInfo>();
    return info.isNull() ? nullptr : Associations::find(info);
}

void ApplicationDialog::apply()
{
    const GAppPtr app = chosen();
    if (!app) {
        QMessageBox::information(this, windowTitle(), tr("Choose an application, or type a command line."));
        return;
    }
    if (m_always->isChecked())
        Associations::setDefault(m_type->text(), app.get());
    if (!m_entries.isEmpty()) {
        const bool started = launch(app.get(), m_entries, m_context);
        if (!started)
            QMessageBox::warning(this, windowTitle(), tr("The application could not be started."));
        Q_EMIT opened(started);
    }
    close();
}
