#pragma once

#include <sys/stat.h>

#include <string>

#include "host/open_file.h"

namespace norvane {

/// The file that is to stand in the place of another one, under a name beside it that nobody can
/// foretell. It is removed again unless it has got to that place.
class NewFile {
 public:
  /// With the permissions of any new file when `of_its_own`, and else for the user alone.
  NewFile(int folder, std::string place, bool of_its_own);
  ~NewFile();
  NewFile(const NewFile&) = delete;
  NewFile& operator=(const NewFile&) = delete;

  bool Is_Open() const { return file_.Is_Open(); }
  /// Takes over group and permissions, and the owner where that is allowed.
  bool Take_Over(const struct stat& old);
  /// Writes all bytes, down to the disk.
  bool Write(const std::string& bytes);
  /// Takes the place, at once and as a whole.
  bool Take_Place();

 private:
  int folder_;
  std::string place_;
  std::string name_;
  OpenFile file_;
  bool in_place_ = false;
};

/// Removes what killed processes of the user have left beside a place: files that are too old for
/// one to be at work on them still.
void Remove_Rests(int folder, const std::string& place);

}  // namespace norvane
