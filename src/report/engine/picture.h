// The seam through which reports get pictures; what a picture is made of stays with the loader.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace tarvis {

// A line of text that a picture shows, for finding and copying. All places are parts of the picture's width
// and height, 0 at its left and top.
struct PictureText {
  struct Place {
    float X = 0;
    float Y = 0;
  };
  std::string Text;          // UTF-8
  std::vector<Place> Edges;  // on the baseline, two of each character: where it begins and where it ends
  Place Up, Down;            // from the baseline to the top of the line, and to its bottom
};

// A loaded picture. The loader's own type derives from it and knows how to paint itself.
class Picture {
 public:
  virtual ~Picture() = default;

  // Natural size in twips, both above 0; only their proportion matters to the composer.
  virtual float NaturalWidth() const = 0;
  virtual float NaturalHeight() const = 0;

  // In the order in which they are read.
  const std::vector<PictureText>& Texts() const { return texts_; }

 protected:
  std::vector<PictureText> texts_;
};

using PicturePtr = std::shared_ptr<const Picture>;

class PictureLoader {
 public:
  virtual ~PictureLoader() = default;

  // Loads by content, once per path and composed document. `path` is a path as the system forms it, with
  // backslashes. A file that is no picture that can be shown is a RunTimeFailure that names file and reason.
  virtual PicturePtr Load(const std::string& path) = 0;
  // The same for a picture held in memory; `name` names it in failures and is its key.
  virtual PicturePtr LoadBytes(const std::string& name, std::string_view bytes) = 0;
};

}  // namespace tarvis
