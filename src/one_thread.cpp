// The program has one thread. The compiler's run-time library guards its own state by the threads of a library that
// needs functions of later Windows versions, so that the program would not even start on earlier ones. These take that
// library's place: with one thread a lock is always free, and what belongs to a thread belongs to the program.
#include <pthread.h>

#include <array>

namespace {

std::array<const void*, 16> values;  // of the keys
pthread_key_t keys = 0;

}  // namespace

extern "C" {

int pthread_once(pthread_once_t* once, void (*initialize)()) {
  if (*once == PTHREAD_ONCE_INIT) {
    *once = !PTHREAD_ONCE_INIT;
    initialize();
  }
  return 0;
}

int pthread_mutex_init(pthread_mutex_t*, const pthread_mutexattr_t*) { return 0; }
int pthread_mutex_lock(pthread_mutex_t*) { return 0; }
int pthread_mutex_unlock(pthread_mutex_t*) { return 0; }
int pthread_mutex_destroy(pthread_mutex_t*) { return 0; }

int pthread_cond_wait(pthread_cond_t*, pthread_mutex_t*) { return 0; }
int pthread_cond_broadcast(pthread_cond_t*) { return 0; }

int pthread_key_create(pthread_key_t* key, void (*)(void*)) {
  if (keys == values.size()) return 1;
  *key = keys++;
  return 0;
}

int pthread_key_delete(pthread_key_t) { return 0; }
void* pthread_getspecific(pthread_key_t key) { return const_cast<void*>(values[key]); }

int pthread_setspecific(pthread_key_t key, const void* value) {
  values[key] = value;
  return 0;
}

}  // extern "C"
