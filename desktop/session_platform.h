#pragma once

#include "desktop/session.h"

namespace quintara::desktop {

// A platform over another whose forms a session shows.
template <typename Base>
class SessionPlatform : public Base {
 public:
  // Where forms are shown from now on. There is none yet while the program is built, nor any more at its end.
  void Attach(Session* session) { session_ = session; }

  void FormShown(Form& form) override {
    if (session_ != nullptr) session_->FormShown(form);
  }
  void FormUnloaded(Form& form) override {
    if (session_ != nullptr) session_->FormUnloaded(form);
  }
  void ProgramEnded() override {
    if (session_ != nullptr) session_->ProgramEnded();
  }

 protected:
  Session* session() const { return session_; }

 private:
  Session* session_ = nullptr;
};

}  // namespace quintara::desktop
