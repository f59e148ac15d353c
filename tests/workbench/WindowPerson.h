#pragma once

#include "workbench/HostData.h"

#include <QString>

#include <memory>

class QWidget;

namespace WQ {
class CMultiParamsTable;
}

namespace workbench {
class MainWindow;
}

/// The whole window, shown and speaking English, and what a person does in it.
namespace person {

std::unique_ptr<workbench::MainWindow> open(const workbench::HostData& data = {});

/// Types a number over a cell's value, key by key.
void typeInto(WQ::CMultiParamsTable& cells, int id, const QString& text);

/// Gives every cell that a person can edit another value, in the first cell table of @p parent.
void editAllCells(const QWidget& parent);

/// Clicks the toolkit's button of that ID: in the strip, in the strip's drop-down, or in a dialog.
void clickButton(const QWidget& parent, int id);

/// Clicks the host's button of that text.
void clickText(const QWidget& parent, const QString& text);

} // namespace person
