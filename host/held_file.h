#pragma once

#include <filesystem>
#include <memory>

namespace norvane {

/// A file by which a process of a user tells the others that it is alive: one at a time can hold
/// it, and the system lets go of it when that one dies.
class HeldFile {
 public:
  enum class State {
    kHeld,
    kTaken,    ///< by another process, by this one already, or it is another user's
    kUnknown,  ///< the system can't tell
  };

  /// Takes hold of the file, which is made at need. Never waits.
  explicit HeldFile(const std::filesystem::path& path);
  /// Lets go.
  ~HeldFile();
  HeldFile(const HeldFile&) = delete;
  HeldFile& operator=(const HeldFile&) = delete;

  State Now() const { return state_; }
  /// Removes the file, if it is held.
  void Remove();

 private:
  class Hold;
  std::unique_ptr<Hold> hold_;
  State state_ = State::kUnknown;
};

}  // namespace norvane
