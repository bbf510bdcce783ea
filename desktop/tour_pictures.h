#pragma once

#include <QtCore/QString>
#include <QtGui/QImage>

#include <functional>

#include "desktop/session.h"
#include "front/tour.h"

namespace quintara::desktop {

// The tour in the real windows, of which it takes pictures. Needs an Application.
class TourPictures final : public TourStage {
 public:
  // Takes the picture of a stage.
  using Keep = std::function<void(const QString& name, const QImage& picture)>;

  TourPictures(const QString& programFolder, Keep keep);
  ~TourPictures();
  TourPictures(const TourPictures&) = delete;
  TourPictures& operator=(const TourPictures&) = delete;

  // Why it ended early; empty where all went well.
  std::string Play() { return Tour(program_, platform_, *this).Play(); }

  void Run(const std::function<void()>& input) override { session_.Run(input); }
  bool Picture(std::string_view name, const Form& form) override;
  // The offscreen windows have no frames of their own.
  bool PictureWithFrames(std::string_view name, std::initializer_list<const Form*> forms) override;

 private:
  // Null where it did not open.
  FormWindow* OpenWindowOf(const Form& form) const;

  Keep keep_;
  TourPlatform platform_;
  Program program_;
  Session session_;
};

}  // namespace quintara::desktop
