// Pictures of every built screen, for reviewing the layout (make screenshots).
#pragma once

#include <QString>

namespace mc::ui {

class Desktop;
class MainWindow;

// Opens each built screen in turn and saves it as DIR/FormN.png (the main
// screen as Form1.png).
void SaveScreenshots(Desktop& desktop, MainWindow& main, const QString& dir);

}  // namespace mc::ui
