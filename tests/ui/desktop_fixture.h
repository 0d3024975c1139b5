// A test program with the desktop and its main window, as the program has
// them after its start, for tests that drive the forms.
#pragma once

#include <gtest/gtest.h>

#include <QAction>
#include <QTimer>
#include <memory>

#include "support/test_program.h"
#include "ui/desktop.h"
#include "ui/main_window.h"

namespace mc::ui {

class DesktopFixture : public ::testing::Test {
 protected:
  explicit DesktopFixture(LocalDateTime now = {2026, 11, 23, 10, 30, 0, 0}) : p(true, now) {}

  // Starts the program and loads the main window, not yet shown; its timer
  // is stopped, so that the tests tick by hand.
  void Open() {
    p.Start();
    desktop = std::make_unique<Desktop>(p.ctx);
    window = std::make_unique<MainWindow>(*desktop);
    window->Load();
    window->Timer()->stop();
  }
  // Opens a screen from its menu entry.
  template <class Form>
  Form* Menu(const char* action) {
    window->ActionNamed(action)->trigger();
    return qobject_cast<Form*>(desktop->ActiveScreen());
  }
  // A widget of a form by its name; a missing one fails the test.
  template <class W>
  W* Child(QWidget* form, const char* name) {
    W* w = form->findChild<W*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }

  test::TestProgram p;
  std::unique_ptr<Desktop> desktop;
  std::unique_ptr<MainWindow> window;
};

}  // namespace mc::ui
