// Printing a document (title, header, text, footer) with the print settings:
// fonts, margins, line spacing, page numbers, date, border and rules.
#pragma once

#include <QString>

#include "shell/print_settings.h"

class QPagedPaintDevice;
class QPrinter;

namespace mc::ui {

// Lays the document out on the device's pages; returns the number of pages.
int RenderDocument(QPagedPaintDevice& device, const PrintSettings& settings,
                   const PrintDocument& doc, const QString& dateLine);

// Paper size, orientation, copies and margins of the settings on a printer.
void ConfigurePrinter(QPrinter& printer, const PrintSettings& settings);

}  // namespace mc::ui
