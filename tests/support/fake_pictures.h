// Pictures without any pixels: they have a size and remember what was loaded.
#pragma once

#include <string>
#include <vector>

#include "report/engine/picture.h"

namespace tarvis {

class FakePicture : public Picture {
 public:
  FakePicture(float width, float height) : width_(width), height_(height) {}
  float NaturalWidth() const override { return width_; }
  float NaturalHeight() const override { return height_; }

 private:
  float width_;
  float height_;
};

class FakePictureLoader : public PictureLoader {
 public:
  PicturePtr Load(const std::string& path) override {
    Loaded.push_back(path);
    return std::make_shared<FakePicture>(NextWidth, NextHeight);
  }
  PicturePtr LoadBytes(const std::string&, std::string_view) override {
    if (!band_) band_ = std::make_shared<FakePicture>(8040.0F, 435.0F);
    return band_;
  }

  float NextWidth = 8000;
  float NextHeight = 6000;
  std::vector<std::string> Loaded;

 private:
  PicturePtr band_;
};

}  // namespace tarvis
