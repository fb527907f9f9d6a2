// Shows the thread sanitizer in which order the toolkit lets threads work. The toolkit is not instrumented
// and locks by means that the sanitizer can't see, so that all data that is handed over through it would be
// reported. This library is loaded before the toolkit; it passes each call on. It hides nothing: what two
// threads share in any other way is reported as before.
#include <dlfcn.h>

#include <QMetaObject>
#include <QThreadPool>
#include <cstdarg>
#include <functional>
#include <utility>

// Of the sanitizer; null in programs without it, such as those that tests start.
extern "C" [[gnu::weak]] void __tsan_acquire(void* place);
extern "C" [[gnu::weak]] void __tsan_release(void* place);

namespace {

void Release(void* place) {
  if (__tsan_release != nullptr) __tsan_release(place);
}

void Acquire(void* place) {
  if (__tsan_acquire != nullptr) __tsan_acquire(place);
}

template <typename Function>
Function* OfTheToolkit(const char* name) {
  return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

// Work that one thread posts and another one does. Either may be the last to use it.
class PostedWork : public QtPrivate::QSlotObjectBase {
 public:
  explicit PostedWork(QSlotObjectBase* work) : QSlotObjectBase(&Do), work_(work) { Release(this); }

 private:
  static void Do(int what, QSlotObjectBase* self, QObject* receiver, void** arguments, bool*) {
    auto* const posted = static_cast<PostedWork*>(self);
    Acquire(posted);
    if (what == Call) {
      posted->work_->call(receiver, arguments);
      Release(posted);
    } else if (what == Destroy) {
      posted->work_->destroyIfLastRef();
      delete posted;
    }
  }

  QSlotObjectBase* work_;
};

}  // namespace

bool QMetaObject::invokeMethodImpl(QObject* receiver, QtPrivate::QSlotObjectBase* work,
                                   Qt::ConnectionType type, void* result) {
  using Function = bool(QObject*, QtPrivate::QSlotObjectBase*, Qt::ConnectionType, void*);
  static auto* const pass = OfTheToolkit<Function>(
      "_ZN11QMetaObject16invokeMethodImplEP7QObjectPN9QtPrivate15QSlotObjectBaseEN2Qt14ConnectionTypeEPv");
  return pass(receiver, new PostedWork(work), type, result);
}

void QThreadPool::start(std::function<void()> work, int priority) {
  using Function = void(QThreadPool*, std::function<void()>, int);
  static auto* const pass = OfTheToolkit<Function>("_ZN11QThreadPool5startESt8functionIFvvEEi");
  auto* const posted = new std::function<void()>(std::move(work));
  Release(posted);
  const auto run = [posted, this] {
    Acquire(posted);
    (*posted)();
    delete posted;
    Release(this);
  };
  pass(this, run, priority);
}

bool QThreadPool::waitForDone(int milliseconds) {
  using Function = bool(QThreadPool*, int);
  static auto* const pass = OfTheToolkit<Function>("_ZN11QThreadPool11waitForDoneEi");
  const bool isDone = pass(this, milliseconds);
  if (isDone) Acquire(this);
  return isDone;
}

// The toolkit starts programs in a copy of the thread that shares its memory until the other program begins.
// The sanitizer takes care of such a copy by ignoring all that it does, and goes on to ignore the thread
// itself.
extern "C" int clone(int (*function)(void*), void* stack, int flags, void* argument, ...) {
  std::va_list more;
  va_start(more, argument);
  void* const parent = va_arg(more, void*);
  void* const storage = va_arg(more, void*);
  void* const child = va_arg(more, void*);
  va_end(more);
  using Function = int(int (*)(void*), void*, int, void*, void*, void*, void*);
  static auto* const system =
      reinterpret_cast<Function*>(dlsym(dlopen("libc.so.6", RTLD_LAZY | RTLD_NOLOAD), "clone"));
  return system(function, stack, flags, argument, parent, storage, child);
}
