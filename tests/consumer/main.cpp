// SPDX-FileCopyrightText: 2026 The libveskfmcore authors
// SPDX-License-Identifier: LGPL-2.1-or-later

#include <veskfm/model.h>
#include <veskplatform/vfs.h>

#include <QApplication>
#include <QTextStream>

int main(int argc, char **argv)
{
    QApplication app(argc, argv);
    VeskFM::Model model(VeskFM::Model::TableMode, VeskFM::ModelFilter::AllEntries, nullptr);
    QObject::connect(&model, &VeskFM::Model::dirListed, [&model] {
        QTextStream out(stdout);
        for (int row = 0; row < model.rowCount(); ++row)
            out << model.index(row, 0).data().toString() << '\n';
        QCoreApplication::quit();
    });
    const VeskFM::Entry directory = VeskFM::VFS::ptr()->entry(app.arguments().value(1, QStringLiteral("/")));
    if (directory.isNull())
        return 1;
    model.rebuild(directory); // returns at once; the rows arrive in the event loop
    return QApplication::exec();
}
