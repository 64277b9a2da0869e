#pragma once

// Small helpers for work that outlives a call: the manager's and the
// presenter's closures run later on the GUI thread or on a pool thread.

#include <QFutureWatcher>
#include <QObject>
#include <QPromise>
#include <QThreadPool>

#include <memory>
#include <type_traits>

namespace TovuManagerSupport {

// Runs `fn` on the GUI thread's next turn, unless `context` is gone by then.
template<class Fn>
void later(QObject *context, Fn fn)
{
    QMetaObject::invokeMethod(context, std::move(fn), Qt::QueuedConnection);
}

// Runs `work` on a pool thread, then `then` with its result on `context`'s
// thread, unless `context` is gone by then.
template<class Work, class Then>
void inBackground(QObject *context, Work work, Then then)
{
    using Result = std::invoke_result_t<Work>;
    auto promise = std::make_shared<QPromise<Result>>();
    auto *watcher = new QFutureWatcher<Result>(context);
    QObject::connect(watcher, &QFutureWatcherBase::finished, watcher, [watcher, then = std::move(then)]() mutable {
        watcher->deleteLater();
        then(watcher->future().takeResult());
    });
    watcher->setFuture(promise->future());
    promise->start();
    QThreadPool::globalInstance()->start([promise, work = std::move(work)]() mutable {
        promise->addResult(work());
        promise->finish();
    });
}

} // namespace TovuManagerSupport
