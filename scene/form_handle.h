#pragma once

#include "scene/form.h"

namespace quintara {

// How one form reaches another: every use through -> or * is a touch, which loads a form that isn't loaded. A
// form uses such a handle to itself where it goes on after its own unloading.
template <typename FormClass>
class FormHandle {
 public:
  FormHandle(FormClass& form) : form_(form) {}  // NOLINT: a form is handed on as a handle

  FormClass* operator->() const {
    form_.Touch();
    return &form_;
  }
  FormClass& operator*() const { return *operator->(); }

  // Neither of these touches the form.
  void Unload() const { form_.Unload(); }
  bool loaded() const { return form_.loaded(); }

 private:
  FormClass& form_;
};

}  // namespace quintara
