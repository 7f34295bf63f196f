// The yardstick of the desktop program: an empty multi-document window with one form of 60 fields.
#include <QApplication>
#include <QFormLayout>
#include <QLineEdit>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>

int main(int count, char** words) {
  QApplication application(count, words);
  QMainWindow frame;
  frame.setWindowTitle(QStringLiteral("Yardstick"));
  auto* const area = new QMdiArea(&frame);
  frame.setCentralWidget(area);
  auto* const form = new QWidget;
  auto* const layout = new QFormLayout(form);
  for (int i = 0; i < 60; ++i) layout->addRow(QStringLiteral("Field %1").arg(i), new QLineEdit);
  area->addSubWindow(form)->show();
  frame.resize(1024, 700);
  frame.show();
  return QApplication::exec();
}
