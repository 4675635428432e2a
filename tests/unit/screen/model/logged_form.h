#pragma once

#include <functional>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "platform/display.h"
#include "screen/model/desk.h"
#include "screen/model/form.h"
#include "screen/model/form_slot.h"

namespace norvane {

using Log = std::vector<std::string>;

/// A display that writes what it is told into a log.
class LoggedDisplay : public Display {
 public:
  explicit LoggedDisplay(Log& log) : log_(log) {}

  DisplayArea Available_Area() const override { return {0, 0, 15360, 11520}; }
  void Form_Loaded(Form& form) override { log_.push_back("display gets " + form.Name()); }
  void Form_Unloaded(Form& form) override { log_.push_back("display loses " + form.Name()); }
  void Run_Modal(Form& form) override {
    log_.push_back(form.Name() + " is modal");
    if (while_modal) while_modal(form);
  }
  void Let_Events_Run() override {}
  MessageAnswer Message(const UserMessage&) override { return MessageAnswer::kOk; }
  void Runtime_Error(int, const std::string&) override {}

  std::function<void(Form& form)> while_modal;

 private:
  Log& log_;
};

/// A form that writes its own events into a log, and then does what it is told to do there.
class LoggedForm : public Form {
 public:
  LoggedForm(Desk& desk, Log& log, const std::string& name)
      : Form(desk, name, 3000, 2000), log_(log) {}
  ~LoggedForm() override { Tell("is gone"); }

  void Load() override { Tell("Load", on_load); }
  void Activate() override { Tell("Activate", on_activate); }
  void Resize() override { Tell("Resize", {}); }

  TextField Text1{*this, "Text1"};
  TextField Text2{*this, "Text2"};
  CaptionField Label1{*this, "Label1"};

  std::function<void()> on_load;
  std::function<void()> on_activate;

 private:
  void Tell(const std::string& event, const std::function<void()>& handler = {}) {
    log_.push_back(Name() + " " + event);
    if (handler) handler();
  }

  Log& log_;
};

/// A desk with a display, on which logged forms lie.
struct LoggedDesk {
  Log log;
  LoggedDisplay display{log};
  Desk desk{display};

  std::function<std::unique_ptr<Form>()> Maker(const std::string& name,
                                               std::function<void(LoggedForm& form)> prepare = {}) {
    return [this, name, prepare = std::move(prepare)] {
      log.push_back(name + " is made");
      auto form = std::make_unique<LoggedForm>(desk, log, name);
      if (prepare) prepare(*form);
      return form;
    };
  }

  /// What was logged since the last call.
  Log Logged() { return std::exchange(log, {}); }
};

}  // namespace norvane
