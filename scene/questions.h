#pragma once

#include <deque>
#include <functional>

namespace quintara {

class Dispatcher;
class Form;

// What the user is asked, one question at a time: message boxes and popup menus. From the first question to
// the reply to the last one the dispatcher is held, so nothing ticks and input waits, as in a handler that
// runs.
class Questions {
 public:
  explicit Questions(Dispatcher& dispatcher) : dispatcher_(dispatcher) {}
  Questions(const Questions&) = delete;
  Questions& operator=(const Questions&) = delete;

  // Puts a question: at once, or after the replies to those before it. `show` hands it to the platform, which
  // calls Replied in that very call or later. `asker` is null for what is told whatever becomes of any form.
  void Put(const Form* asker, std::function<void()> show);

  // The open question has its reply. `then`, if any, runs once no question is open and the running handler
  // has ended, before input that waits. Does nothing where no question is open: the program has ended
  // meanwhile.
  void Replied(std::function<void()> then);

  // The form is unloaded: what it would still ask is never shown, and what it would do with a reply is
  // dropped.
  void Drop(const Form& form);
  // The program has ended.
  void DropAll() { questions_.clear(); }

 private:
  struct Question {
    const Form* asker;
    std::function<void()> show;
    bool dropped = false;
  };

  void ShowNext();

  Dispatcher& dispatcher_;
  std::deque<Question> questions_;  // the first one is open
};

}  // namespace quintara
