#pragma once

#include "catalogue/settings_form.h"
#include "desktop/form_view.h"

class QGridLayout;

namespace norvane {

/// The settings dialog. Enter is OK, Escape is Cancel.
class SettingsView : public FormView {
  Q_OBJECT

 public:
  SettingsView(Desktop& desktop, Settings& settings);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void Arrange() override;
  QPoint Wished_Place(const QSize& size) const override;

 private:
  void Add_Saving_Row(QGridLayout& grid, int row, CaptionField& heading, TextField& field,
                      Stepper& stepper);
  void Turn_Tabs(int by);

  Settings& settings_;
};

}  // namespace norvane
