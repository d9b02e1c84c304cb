#include "SXHomeFolder.h"

#include <QDir>
#include <QStandardPaths>

QString SXHomeFolder::processHome() {
    return QDir::homePath();
}

QString SXHomeFolder::documentsFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
}

QString SXHomeFolder::dataFolder() {
    return QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation);
}
