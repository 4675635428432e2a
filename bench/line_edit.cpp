// A window with nothing but a line edit: what Qt alone takes.
#include <QApplication>
#include <QLineEdit>

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QLineEdit edit;
  edit.resize(300, 30);
  edit.show();
  return QApplication::exec();
}
