// The desktop tests run offscreen, with one QApplication for all of them.
#include <gtest/gtest.h>

#include <QApplication>
#include <QStyleFactory>

int main(int argc, char** argv) {
  qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication app(argc, argv);
  app.setStyle(QStyleFactory::create("Fusion"));
  ::testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
