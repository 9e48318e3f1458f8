// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/core.h>

#include <fixedplaces.h>
#include <veskplatform/entry.h>

#include <QByteArray>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QGuiApplication>
#include <QProcess>
#include <QProcessEnvironment>
#include <QScreen>
#include <QVarLengthArray>
#include <QWidget>

#include <map>

#include <unistd.h>

namespace VeskFM
{

namespace
{

/// Variables of this process that a child shall see with other values. Put back when the object goes.
class EnvironmentOverride
{
public:
    EnvironmentOverride() = default;
    ~EnvironmentOverride()
    {
        for (const auto &[name, value] : m_former) {
            if (value.isNull()) // was unset, which is not the same as empty
                qunsetenv(name.constData());
            else
                qputenv(name.constData(), value);
        }
    }

    void set(const QByteArray &name, const QByteArray &value)
    {
        m_former.emplace(name, qgetenv(name.constData())); // only the first one is the caller's own
        qputenv(name.constData(), value);
    }

private:
    Q_DISABLE_COPY(EnvironmentOverride)

    std::map<QByteArray, QByteArray> m_former;
};

QByteArray rootDisplay()
{
    return qgetenv("ROOT_DISPLAY");
}

QRect availableArea()
{
    const QScreen *const screen = QGuiApplication::primaryScreen();
    return screen ? screen->availableGeometry() : QRect();
}

} // namespace

QString Core::version()
{
    return QStringLiteral("1.7.162");
}

QString Core::dataSizeAsString(long long size)
{
    static const char *const units[] = {
        QT_TRANSLATE_NOOP("QObject", "B"),  QT_TRANSLATE_NOOP("QObject", "KB"), QT_TRANSLATE_NOOP("QObject", "MB"),
        QT_TRANSLATE_NOOP("QObject", "GB"), QT_TRANSLATE_NOOP("QObject", "TB"),
    };
    constexpr int lastUnit = 4;
    constexpr double step = 1024.0;

    double value = double(size);
    int unit = 0;
    for (; value >= step && unit < lastUnit; ++unit)
        value /= step;
    // Rounded only now, when the unit is chosen: a byte less than a megabyte is "1024.00 KB", and stays so.
    const QString number = unit == 0 ? QString::number(size) : QString::number(value, 'f', 2);
    return number + QLatin1Char(' ') + QCoreApplication::translate("QObject", units[unit]);
}

QString Core::md5HashForString(const QString &text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toLocal8Bit(), QCryptographicHash::Md5).toHex());
}

// The point of both placements is taken neither from the area's own corner nor in the parent's coordinates:
// applications place their windows by this outcome.
void Core::moveForCenter(QWidget *widget)
{
    if (!widget)
        return;
    const QRect area = availableArea();
    const QPoint point((area.width() - widget->width()) / 2, (area.height() - widget->height()) / 2);
    widget->move(widget->mapFromGlobal(point));
}

void Core::moveForPresentation(QWidget *widget)
{
    if (!widget)
        return;
    const QRect area = availableArea();
    const QPoint point((area.width() - area.width() / 2) / 2, (area.height() - area.height() / 2) / 2);
    widget->move(widget->mapFromGlobal(point));
}

bool Core::startProcess(const QString &commandLine)
{
    EnvironmentOverride childEnvironment;
    QString line = commandLine;
    const QByteArray display = rootDisplay();
    if (!display.isEmpty()) {
        childEnvironment.set("DISPLAY", display);
        line.prepend(QLatin1String(VESKFM_ROOT_DISPLAY_TOOL " "));
    }
    QStringList arguments = QProcess::splitCommand(line);
    if (arguments.isEmpty())
        return false;
    const QString program = arguments.takeFirst();
    return QProcess::startDetached(program, arguments);
}

bool Core::startProcess(const QString &program, const QStringList &arguments, const QString &workingDirectory,
                        const QProcessEnvironment &environment)
{
    const QByteArray display = rootDisplay(); // the caller's, even where the given environment sets another
    EnvironmentOverride childEnvironment;
    const QStringList names = environment.keys();
    for (const QString &name : names)
        childEnvironment.set(name.toLocal8Bit(), environment.value(name).toLocal8Bit());
    if (display.isEmpty())
        return QProcess::startDetached(program, arguments, workingDirectory);
    childEnvironment.set("DISPLAY", display);
    return QProcess::startDetached(QStringLiteral(VESKFM_ROOT_DISPLAY_TOOL), QStringList(program) + arguments,
                                   workingDirectory);
}

QMap<unsigned int, QString> Core::currentProcessGroups()
{
    QMap<unsigned int, QString> groups;
    const auto add = [&groups](gid_t id) {
        const QString name = Entry::groupName(id);
        if (!name.isEmpty())
            groups.insert(id, name);
    };
    constexpr int inlineGroups = 256;
    QVarLengthArray<gid_t, inlineGroups> ids(qMax(0, getgroups(0, nullptr)));
    const int count = ids.isEmpty() ? 0 : getgroups(ids.size(), ids.data());
    for (int i = 0; i < count; ++i)
        add(ids[i]);
    add(getegid());
    return groups;
}

} // namespace VeskFM
