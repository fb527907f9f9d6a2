#include "printfiles/header_keys.h"

#include <string>

namespace tarvis {
namespace {

constexpr std::int16_t OldestFileSpec = 3;

KeyTable OtherHeaderKeys(FileHeader& header) {
  return {
      {"FileType", Rest(header.FileType)}, {"Made-by", Rest(header.MadeBy)},
      {"DateTime", Rest(header.DateTime)}, {"MechaInfo", Rest(header.MechaInfo)},
      {"File", Rest(header.File)},
  };
}

}  // namespace

KeyTable HeaderKeys(FileHeader& header) {
  return OtherHeaderKeys(header) + KeyTable{{"File-Spec", Rest(header.FileSpec)}};
}

KeyTable HeaderKeysOfNewFiles(FileHeader& header) {
  const LineHandler newFileSpec = [&header](LineValue& value) -> Refusal {
    value.FieldsAndRest(header.FileSpec);
    if (header.FileSpec < OldestFileSpec) return "below " + std::to_string(OldestFileSpec);
    return Accepted;
  };
  return OtherHeaderKeys(header) + KeyTable{{"File-Spec", newFileSpec}};
}

KeyTable CommentKeys(UserData& user) {
  return {
      {"CommentCnt", Rest(user.CommentCnt)},
      {"Comment", Rest(Escaped{user.Comment})},
  };
}

}  // namespace tarvis
