#pragma once

#include <coroutine>
#include <exception>
#include <memory>
#include <optional>
#include <utility>
#include <vector>

#include "platform/scheduler.h"

namespace platform {

// A routine that waits. Lazy: it runs when it is awaited or given to Tasks. One owner; destroying a
// suspended Task cancels it, and every awaiter inside takes back what it had registered. A running
// one is never destroyed: Tasks posts that cancellation.
//
// How Tasks are written: parameters by value, references only to what outlives the program's run;
// no capturing coroutine lambdas; one co_await a statement, never inside a catch; after each one
// the state is looked at again.
template <class T = void>
class Task;

namespace detail {

// What all coroutines of one tree share: the scheduler, and how deep one of them is running.
struct TaskRoot {
  explicit TaskRoot(Scheduler& owner) : scheduler(owner) {}
  Scheduler& scheduler;
  int running = 0;
};

// A suspended coroutine, and the tree to count it in while it runs.
class Resumption {
 public:
  Resumption() = default;
  Resumption(std::coroutine_handle<> handle, std::shared_ptr<TaskRoot> root)
      : handle_(handle), root_(std::move(root)) {}
  explicit operator bool() const { return static_cast<bool>(handle_); }
  Scheduler& scheduler() const { return root_->scheduler; }

  void operator()() const {
    const auto root = root_;
    const auto handle = handle_;
    ++root->running;
    handle.resume();
    --root->running;
  }

 private:
  std::coroutine_handle<> handle_;
  std::shared_ptr<TaskRoot> root_;
};

struct PromiseBase {
  std::shared_ptr<TaskRoot> root;
  Resumption parent;          // who awaits the end, if anyone had to wait for it
  Scheduler::Callback onEnd;  // of an outermost Task: told in a later turn
  std::exception_ptr fault;
  Registration posted;

  struct EndAwaiter {
    bool await_ready() noexcept { return false; }
    template <class Promise>
    void await_suspend(std::coroutine_handle<Promise> ended) noexcept {
      PromiseBase& promise = ended.promise();
      if (promise.parent) {
        promise.posted = promise.root->scheduler.Post(promise.parent);
      } else if (promise.onEnd) {
        promise.posted = promise.root->scheduler.Post(promise.onEnd);
      }
    }
    void await_resume() noexcept {}
  };

  std::suspend_always initial_suspend() noexcept { return {}; }
  EndAwaiter final_suspend() noexcept { return {}; }
  void unhandled_exception() { fault = std::current_exception(); }
};

template <class T>
struct Promise : PromiseBase {
  std::optional<T> value;
  Task<T> get_return_object();
  void return_value(T result) { value = std::move(result); }
  T Result() { return std::move(*value); }
};

template <>
struct Promise<void> : PromiseBase {
  Task<void> get_return_object();
  void return_void() {}
  void Result() {}
};

}  // namespace detail

template <class T>
class [[nodiscard]] Task {
 public:
  using promise_type = detail::Promise<T>;
  using Handle = std::coroutine_handle<promise_type>;

  Task() = default;
  explicit Task(Handle handle) : handle_(handle) {}
  Task(Task&& other) noexcept : handle_(std::exchange(other.handle_, nullptr)) {}
  Task& operator=(Task&& other) noexcept {
    std::swap(handle_, other.handle_);
    return *this;
  }
  Task(const Task&) = delete;
  Task& operator=(const Task&) = delete;
  ~Task() {
    if (handle_) handle_.destroy();
  }

  bool Done() const { return !handle_ || handle_.done(); }
  promise_type& promise() { return handle_.promise(); }

  // Runs it up to its first wait, or its end.
  void Start(std::shared_ptr<detail::TaskRoot> root) {
    handle_.promise().root = root;
    detail::Resumption(handle_, std::move(root))();
  }

  // A child that ends without waiting lets its parent go on at once; otherwise its end posts the
  // parent. What the child threw comes out of the parent's co_await.
  struct Awaiter {
    Task child;

    explicit Awaiter(Task awaited) : child(std::move(awaited)) {}

    bool await_ready() const { return false; }
    template <class Promise>
    bool await_suspend(std::coroutine_handle<Promise> parent) {
      child.Start(parent.promise().root);
      if (child.Done()) return false;
      child.promise().parent = detail::Resumption(parent, parent.promise().root);
      return true;
    }
    T await_resume() {
      if (child.promise().fault) std::rethrow_exception(child.promise().fault);
      return child.promise().Result();
    }
  };
  Awaiter operator co_await() && { return Awaiter(std::move(*this)); }

 private:
  Handle handle_;
};

namespace detail {
template <class T>
Task<T> Promise<T>::get_return_object() {
  return Task<T>(Task<T>::Handle::from_promise(*this));
}
inline Task<void> Promise<void>::get_return_object() {
  return Task<void>(Task<void>::Handle::from_promise(*this));
}
}  // namespace detail

// co_await Delay{250ms}: goes on that much later, in a turn of its own.
class Delay {
 public:
  explicit Delay(Milliseconds duration) : duration_(duration) {}
  bool await_ready() const { return false; }
  template <class Promise>
  void await_suspend(std::coroutine_handle<Promise> waiting) {
    detail::Resumption resume(waiting, waiting.promise().root);
    Scheduler& scheduler = resume.scheduler();
    timer_ = scheduler.After(duration_, std::move(resume));
  }
  void await_resume() {}

 private:
  Milliseconds duration_;
  Registration timer_;
};

// Something that happens now and then, for those who wait for it to happen next.
class Signal {
 public:
  class Awaiter {
   public:
    explicit Awaiter(Signal& signal) : signal_(signal) {}
    Awaiter(const Awaiter&) = delete;
    Awaiter& operator=(const Awaiter&) = delete;
    ~Awaiter() { std::erase(signal_.waiting_, this); }
    bool await_ready() const { return false; }
    template <class Promise>
    void await_suspend(std::coroutine_handle<Promise> waiting) {
      resume_ = detail::Resumption(waiting, waiting.promise().root);
      signal_.waiting_.push_back(this);
    }
    void await_resume() {}

   private:
    friend class Signal;
    Signal& signal_;
    detail::Resumption resume_;
    Registration posted_;
  };

  Signal() = default;
  Signal(const Signal&) = delete;
  Signal& operator=(const Signal&) = delete;

  // co_await signal.Next(): goes on in a turn behind the next Notify. The Signal outlives the wait.
  Awaiter Next() { return Awaiter(*this); }

  void Notify() {
    for (Awaiter* waiting : std::exchange(waiting_, {}))
      waiting->posted_ = waiting->resume_.scheduler().Post(waiting->resume_);
  }

 private:
  std::vector<Awaiter*> waiting_;
};

}  // namespace platform
