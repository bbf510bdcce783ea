#pragma once

namespace quintara {

class Form;

// Who keeps a window for each shown form, and is told what becomes of forms.
class Windows {
 public:
  virtual void FormShown(Form& form) = 0;
  virtual void FormUnloaded(Form& form) = 0;
  virtual void ProgramEnded() = 0;

 protected:
  ~Windows() = default;
};

// A platform over another, whose forms somebody shows.
template <typename Base, typename Keeper = Windows>
class WindowsPlatform : public Base {
 public:
  // Who shows forms from now on. There is nobody yet while the program is built, nor any more at its end.
  void Attach(Keeper* windows) { windows_ = windows; }

  void FormShown(Form& form) override {
    if (windows_ != nullptr) windows_->FormShown(form);
  }
  void FormUnloaded(Form& form) override {
    if (windows_ != nullptr) windows_->FormUnloaded(form);
  }
  void ProgramEnded() override {
    if (windows_ != nullptr) windows_->ProgramEnded();
  }

 protected:
  Keeper* windows() const { return windows_; }

 private:
  Keeper* windows_ = nullptr;
};

}  // namespace quintara
