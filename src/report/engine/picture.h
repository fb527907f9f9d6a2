// The seam through which reports get pictures; what a picture is made of stays with the loader.
#pragma once

#include <memory>
#include <string>
#include <string_view>

namespace tarvis {

// A loaded picture. The loader's own type derives from it and knows how to paint itself.
class Picture {
 public:
  virtual ~Picture() = default;

  // Natural size in twips, both above 0; only their proportion matters to the composer.
  virtual float NaturalWidth() const = 0;
  virtual float NaturalHeight() const = 0;
};

using PicturePtr = std::shared_ptr<const Picture>;

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;

  // Loads by content, once per path and composed document. `path` is a path as the system forms it, with backslashes.
  // A file that is no picture that can be shown is a RunTimeFailure that names file and reason.
  virtual PicturePtr Load(const std::string& path) = 0;
  // The same for a picture held in memory; `name` stands for it in failures and is its key.
  virtual PicturePtr LoadBytes(const std::string& name, std::string_view bytes) = 0;
};

}  // namespace tarvis
