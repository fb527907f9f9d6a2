// Break opportunities of running text, by the line breaking rules of Unicode.
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

 private:
  struct Iterator;
  std::unique_ptr<Iterator> iterator_;
  std::vector<int> offsets_;
};

}  // namespace tarvis
