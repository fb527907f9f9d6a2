// The header keys that all data files share.
#pragma once

#include <cstdint>
#include <string>

namespace tarvis {

// Always describes the data file read last; where a file doesn't have a key, the value of the previous file
// stays.
struct FileHeader {
  std::int16_t FileSpec = 0;
  std::string FileType;
  std::string MadeBy;
  std::string DateTime;
  std::string MechaInfo;  // servo and motor models, printed by the common header
  std::string File;       // file name shown by the common header
};

}  // namespace tarvis
