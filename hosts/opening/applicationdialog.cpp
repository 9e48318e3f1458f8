// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include "applicationdialog.h"

#include "associations.h"

#include <veskfm/mimerelatedsettings.h>
#include <veskplatform/veskicon.h>

#include <QCheckBox>
#include <QCompleter>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QFileInfo>
#include <QFormLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QMimeDatabase>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

using namespace VeskFM;

namespace
{

constexpr int applicationRole = Qt::UserRole; // an AppInfo
constexpr int iconSize = 22;                  // pixels
constexpr QSize usualSize(420, 460);

QStringList allTypes()
{
    QStringList names;
    const QList<QMimeType> types = QMimeDatabase().allMimeTypes();
    for (const QMimeType &type : types)
        names.append(type.name());
    return names;
}

QStringList typesOf(const OpenTargetList &targets)
{
    QStringList types;
    for (const OpenTarget &target : targets)
        types.append(target.type);
    types.removeDuplicates();
    return types;
}

void erase(GAppList *apps, const GAppList &others, bool eraseCommon)
{
    const auto unwanted = [&others, eraseCommon](const GAppPtr &app) {
        const bool isCommon = std::any_of(others.begin(), others.end(), [&app](const GAppPtr &other) {
            return g_app_info_equal(app.get(), other.get());
        });
        return isCommon == eraseCommon;
    };
    apps->erase(std::remove_if(apps->begin(), apps->end(), unwanted), apps->end());
}

/// Those that open every one of the types.
GAppList fittingApplications(const QStringList &types)
{
    GAppList fitting = Associations::allFor(types.value(0));
    for (const QString &type : types.mid(1))
        erase(&fitting, Associations::allFor(type), false);
    return fitting;
}

// As a word of a command line.
QString quoted(const QString &program)
{
    QString text = program;
    text.replace(QLatin1Char('%'), QLatin1String("%%"));
    const GTextPtr word(g_shell_quote(text.toUtf8().constData()));
    return QString::fromUtf8(word.get());
}

} // namespace

ApplicationDialog::ApplicationDialog(const OpenTargetList &targets, const LaunchContext &context)
    : m_targets(targets)
    , m_context(context)
    , m_types(typesOf(targets))
    , m_type(new QLineEdit(this))
    , m_applications(new QTreeWidget(this))
    , m_command(new QLineEdit(this))
    , m_always(new QCheckBox(tr("Always open this type with it"), this))
    , m_problem(new QLabel(this))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(m_targets.isEmpty() ? tr("Applications") : tr("Open With"));
    makeTypeField();
    m_applications->setHeaderHidden(true);
    m_applications->setRootIsDecorated(false);
    m_applications->setIconSize(QSize(iconSize, iconSize));
    m_command->setPlaceholderText(tr("or a command line"));
    m_problem->setWordWrap(true);
    m_problem->hide();
    layOut();
    connect(m_applications, &QTreeWidget::itemActivated, this, &ApplicationDialog::apply);

    fillApplications();
    m_applications->setFocus();
    const QSize size = MimeRelatedSettings().applicationDialogSize();
    resize(size.isValid() ? size : usualSize);
    show();
    activateWindow();
}

ApplicationDialog::~ApplicationDialog()
{
    MimeRelatedSettings().setApplicationDialogSize(size());
}

void ApplicationDialog::makeTypeField()
{
    m_always->setVisible(!m_targets.isEmpty());
    if (!m_targets.isEmpty()) {
        m_type->setText(m_types.join(QLatin1String(", ")));
        m_type->setReadOnly(true);
        return;
    }
    m_always->setChecked(true);
    m_types = QStringList(QStringLiteral("text/plain"));
    m_type->setText(m_types.first());
    m_type->setCompleter(new QCompleter(allTypes(), this));
    connect(m_type, &QLineEdit::textChanged, this, [this](const QString &text) {
        m_types = QStringList(text.trimmed());
        if (QMimeDatabase().mimeTypeForName(m_types.first()).isValid()) // one that is not yet whole has no applications
            fillApplications();
    });
}

void ApplicationDialog::layOut()
{
    auto *const form = new QFormLayout;
    if (!m_targets.isEmpty()) {
        auto *const name =
            new QLabel(m_targets.size() == 1 ? m_targets.first().name : tr("%n file(s)", nullptr, m_targets.size()));
        name->setTextFormat(Qt::PlainText);
        form->addRow(tr("Open:"), name);
    }
    form->addRow(tr("Type:"), m_type);

    auto *const browseButton = new QToolButton(this);
    browseButton->setText(QStringLiteral("…"));
    browseButton->setToolTip(tr("Choose a program"));
    connect(browseButton, &QAbstractButton::clicked, this, &ApplicationDialog::browse);
    auto *const command = new QHBoxLayout;
    command->addWidget(m_command);
    command->addWidget(browseButton);

    auto *const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(m_targets.isEmpty() ? tr("Set as Default") : tr("Open"));
    connect(buttons, &QDialogButtonBox::accepted, this, &ApplicationDialog::apply);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto *const layout = new QVBoxLayout(this);
    layout->addLayout(form);
    layout->addWidget(m_applications);
    layout->addLayout(command);
    layout->addWidget(m_always);
    layout->addWidget(m_problem);
    layout->addWidget(buttons);
}

void ApplicationDialog::fillApplications()
{
    m_applications->clear();
    const GAppList fitting = fittingApplications(m_types);
    GAppList others = Associations::all();
    erase(&others, fitting, true);
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
        item->setIcon(0, VeskIcon::fromTheme(info.icon()));
        item->setToolTip(0, info.comment());
        item->setData(0, applicationRole, QVariant::fromValue(info));
    }
}

void ApplicationDialog::browse()
{
    auto *const files = new QFileDialog(this, tr("Choose a program"), MimeRelatedSettings().preferredApplicationPath());
    files->setAttribute(Qt::WA_DeleteOnClose);
    files->setFileMode(QFileDialog::ExistingFile);
    connect(files, &QFileDialog::fileSelected, this, [this](const QString &program) {
        MimeRelatedSettings().setPreferredApplicationPath(QFileInfo(program).path());
        m_command->setText(quoted(program));
    });
    files->open();
}

/// What was typed, else what is selected; null for neither.
AppInfo ApplicationDialog::chosen() const
{
    AppInfo info;
    const QString command = m_command->text().trimmed();
    if (!command.isEmpty())
        info.setExec(command);
    else if (const QTreeWidgetItem *const item = m_applications->currentItem())
        info = item->data(0, applicationRole).value<AppInfo>();
    return info;
}

void ApplicationDialog::apply()
{
    const AppInfo info = chosen();
    if (info.isNull()) {
        tellProblem(tr("Choose an application, or type a command line."));
        return;
    }
    if (!Associations::isType(m_types.value(0))) {
        tellProblem(tr("A type is written like \"text/plain\"."));
        return;
    }
    const GAppPtr app = Associations::find(info);
    if (!app) {
        tellProblem(tr("There is no such program."));
        return;
    }
    if (!m_targets.isEmpty() && !launch(app.get(), m_targets, m_context)) {
        tellProblem(tr("%1 cannot be started.").arg(info.name()));
        return;
    }
    if (m_always->isChecked()) { // only now: what cannot be started is of no use as a default
        for (const QString &type : qAsConst(m_types))
            Associations::setDefault(type, app.get());
    }
    accept();
}

void ApplicationDialog::tellProblem(const QString &text)
{
    m_problem->setText(text);
    m_problem->show();
}
