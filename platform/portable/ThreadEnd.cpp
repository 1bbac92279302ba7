#include "platform/ThreadEnd.h"

#include <pthread.h>

void AtThreadEnd(void (*Work)(void* Value), void* Value)
{
    static const pthread_key_t Key = [Work] {
        pthread_key_t Result{};
        pthread_key_create(&Result, Work);
        return Result;
    }();
    pthread_setspecific(Key, Value);
}
