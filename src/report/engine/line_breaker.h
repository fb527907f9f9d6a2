// Break opportunities of running text, as Unicode's line breaking tells them.
#pragma once

#include <memory>
#include <string_view>
#include <vector>

namespace tarvis {

class LineBreaker {
 public:
  LineBreaker();
  ~LineBreaker();

  // Byte offsets behind which `text` (UTF-8) may break, ascending, the last one its length. Valid until the
  // next call.
  const std::vector<int>& Opportunities(std::string_view text);

 private:
  struct Iterator;
  std::unique_ptr<Iterator> iterator_;
  std::vector<int> offsets_;
};

}  // namespace tarvis
