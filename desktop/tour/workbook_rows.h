#pragma once

#include <QList>
#include <QStringList>

namespace norvane {

/// The cells of a workbook's first sheet as texts, row by row; empty where a cell is. No rows where
/// the file is no workbook (ECMA-376, Office Open XML).
QList<QStringList> Workbook_Rows(const QString& file);

}  // namespace norvane
