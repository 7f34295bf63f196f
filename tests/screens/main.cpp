// Runs the tests of the screens one after the other.

#include <QApplication>
#include <QTest>

#include "access_test.h"
#include "clipboard_test.h"
#include "fields_test.h"
#include "graphs_test.h"
#include "layout_test.h"
#include "manual_test.h"
#include "platform_test.h"
#include "print_test.h"
#include "road_test.h"
#include "windows_test.h"

namespace {

/// Runs one class of tests, unless the environment names another one.
template <class Test>
int Run(int argc, char** argv) {
  Test test;
  const QByteArray wanted = qgetenv("ZEFIRONDO_TEST_CLASS");
  if (!wanted.isEmpty() && wanted != Test::staticMetaObject.className()) return 0;
  return QTest::qExec(&test, argc, argv);
}

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  int failures = Run<RoadTest>(argc, argv);
  failures += Run<FieldsTest>(argc, argv);
  failures += Run<WindowsTest>(argc, argv);
  failures += Run<GraphsTest>(argc, argv);
  failures += Run<ClipboardTest>(argc, argv);
  failures += Run<AccessTest>(argc, argv);
  failures += Run<LayoutTest>(argc, argv);
  failures += Run<ManualTest>(argc, argv);
  failures += Run<PlatformTest>(argc, argv);
  failures += Run<PrintTest>(argc, argv);
  return failures == 0 ? 0 : 1;
}
