#include "scene/questions.h"

#include <utility>

#include "scene/dispatcher.h"

namespace quintara {

void Questions::Put(const Form* asker, std::function<void()> show) {
  dispatcher_.Hold();
  questions_.push_back({asker, std::move(show)});
  if (questions_.size() == 1) ShowNext();
}

void Questions::ShowNext() {
  // The reply may come inside the call and take the question out of the queue.
  const auto show = questions_.front().show;
  show();
}

void Questions::Replied(std::function<void()> then) {
  if (questions_.empty()) return;
  const Question answered = std::move(questions_.front());
  questions_.pop_front();
  if (then && !answered.dropped) dispatcher_.Continue(answered.asker, std::move(then));
  if (questions_.empty()) {
    dispatcher_.Release();
  } else {
    ShowNext();
  }
}

void Questions::Drop(const Form& form) {
  for (std::size_t i = questions_.size(); i-- > 0;) {
    if (questions_[i].asker != &form) continue;
    if (i == 0) {
      questions_[i].dropped = true;  // it is on the screen; until its reply the dispatcher stays held
    } else {
      questions_.erase(questions_.begin() + static_cast<std::ptrdiff_t>(i));
    }
  }
}

}  // namespace quintara
