// Where running text may break, by Unicode's rules for line breaks and for clusters of letter and marks.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace tarvis {

class LineBreaker {
 public:
  LineBreaker();
  ~LineBreaker();

  // Byte offsets after which `text` (UTF-8) may break, ascending, the last one its length. Valid until the
  // next call.
  const std::vector<int>& Opportunities(std::string_view text);

  // The length in bytes of the first cluster of `text`, which is not empty: a character with its marks.
  std::size_t FirstCluster(std::string_view text);

 private:
  struct Iterators;
  std::unique_ptr<Iterators> iterators_;
  std::vector<int> offsets_;
};

}  // namespace tarvis
