#pragma once

#include "test_folder.h"

namespace norvane {

/// A program's folder as a new user has it: all languages and addresses, and no settings yet.
class FolderOfProgram : public TestFolder {
 public:
  FolderOfProgram();
};

}  // namespace norvane
