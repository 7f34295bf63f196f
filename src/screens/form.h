// Building blocks of the windows: widgets made for controls, and form rows that line up.
#pragma once

#include <QGridLayout>
#include <QLabel>
#include <QWidget>

#include "screens/binder.h"

class QGroupBox;

namespace zefirondo::screens {

/// Makes the widget that a control of this kind is shown in, and ties the two.
QWidget* MakeWidget(Binder& binder, Control& control, QWidget* parent);

/// A group box for a frame within a page.
QGroupBox* MakeGroup(Binder& binder, Control& frame, QWidget* parent);

/// A form in a grid: each row has the words, the field, and the words behind it.
class Form {
 public:
  /// `column` is the first of the three grid columns that the form takes.
  Form(Binder& binder, QWidget* parent, QGridLayout* grid, int column = 0);

  /// A row of a number with its own words.
  QWidget* Row(Control& field);
  /// A row of a text, as wide as a name.
  QWidget* TextRow(Control& field);
  /// A row of a field whose words are a control of their own.
  QWidget* Row(Control& label, Control& field);
  /// A row of a field whose words, or the words behind it, are controls of their own.
  QWidget* Row(Control& label, Control& field, Control& unit);
  /// A row with a widget over all three columns.
  void Wide(QWidget* widget, Qt::Alignment alignment = {});
  /// A row of words and a widget.
  void Row(QWidget* words, QWidget* widget);
  /// A row of a widget that stands for the words, a field, and the words behind it.
  void Row(QWidget* words, Control& field, Control& unit);
  /// Room that takes what is left over below the rows.
  void Fill();

  [[nodiscard]] QGridLayout* grid() const { return grid_; }
  [[nodiscard]] int row() const { return row_; }

 private:
  QLabel* Words(Qt::Alignment alignment);
  void Place(QWidget* words, QWidget* field, QWidget* unit);

  Binder& binder_;
  QWidget* parent_;
  QGridLayout* grid_;
  int column_;
  int row_ = 0;
};

/// Leaves a widget its place in the layout while it is hidden.
void KeepPlace(QWidget* widget);

}  // namespace zefirondo::screens
