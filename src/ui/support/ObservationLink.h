#pragma once
#include "platform/concurrency/KTMainThread.h"
#include "platform/observing/KTObservable.h"

#include <QPointer>

/// Observes for a widget or model: @p handler runs on the main thread after each change of @p key (of every
/// key for an empty one), at once where it was announced there, as long as @p owner lives.
template<class Owner>
[[nodiscard]] KTObservable::Observation observeFor(Owner* owner, KTObservable& observed, std::string key,
                                                   std::function<void()> handler) {
    return observed.observe(
        [guard = QPointer<Owner>(owner), key = std::move(key),
         call = std::make_shared<std::function<void()>>(std::move(handler))](const KTChange& change) {
            if (change.isPrior || (!key.empty() && change.key != key))
                return;
            if (KTMainThread::isCurrent())
                (*call)();
            else
                KTPerformOnMainThread([guard, call] {
                    if (guard)
                        (*call)();
                });
        });
}
