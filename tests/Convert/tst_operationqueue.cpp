#include "Convert/SXOperationQueue.h"
#include "support/TestSupport.h"

#include <QMutex>
#include <QSemaphore>
#include <QSignalSpy>
#include <atomic>

namespace {
// Records that it ran and, when asked, holds its worker until the test releases it.
class GateOperation : public SXOperation {
public:
    explicit GateOperation(QSemaphore* gate = nullptr, std::atomic<int>* running = nullptr,
                           std::atomic<int>* peak = nullptr)
        : m_gate(gate)
        , m_running(running)
        , m_peak(peak) {}
    void main() override {
        ran = true;
        if (m_running) {
            const int now = ++*m_running;
            int seen = m_peak->load();
            while (now > seen && !m_peak->compare_exchange_weak(seen, now)) {
            }
        }
        entered.release();
        if (m_gate)
            m_gate->acquire();
        if (m_running)
            --*m_running;
    }
    std::atomic<bool> ran{false};
    QSemaphore entered;

private:
    QSemaphore* m_gate;
    std::atomic<int>* m_running;
    std::atomic<int>* m_peak;
};
} // namespace

class OperationQueueTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    void respectsConcurrencyLimit();
    void cancelledWhileWaitingNeverRuns();
    void releasesOperationsAfterMain();
};

void OperationQueueTest::respectsConcurrencyLimit() {
    SXOperationQueue queue;
    queue.setMaxConcurrentOperationCount(2);
    QCOMPARE(queue.maxConcurrentOperationCount(), 2);
    QSemaphore gate;
    std::atomic<int> running{0};
    std::atomic<int> peak{0};
    QList<std::shared_ptr<GateOperation>> ops;
    for (int i = 0; i < 5; ++i) {
        ops.append(std::make_shared<GateOperation>(&gate, &running, &peak));
        queue.addOperation(ops.last());
    }
    QVERIFY(ops[0]->entered.tryAcquire(1, 10000));
    QVERIFY(ops[1]->entered.tryAcquire(1, 10000));
    // Two hold their threads: the others wait, in the order added.
    QCOMPARE(queue.operationCount(), 5);
    const auto listed = queue.operations();
    for (int i = 0; i < 5; ++i)
        QCOMPARE(listed[i], std::static_pointer_cast<SXOperation>(ops[i]));
    QVERIFY(!ops[2]->ran);
    gate.release(5);
    queue.waitUntilAllOperationsAreFinished();
    QCOMPARE(peak.load(), 2);
    for (const auto& op : ops)
        QVERIFY(op->ran && op->isFinished());
    QCOMPARE(queue.operationCount(), 0);
}

void OperationQueueTest::cancelledWhileWaitingNeverRuns() {
    SXOperationQueue queue;
    queue.setMaxConcurrentOperationCount(1);
    QSignalSpy finished(&queue, &SXOperationQueue::operationFinished);
    QSemaphore gate;
    auto busy = std::make_shared<GateOperation>(&gate);
    auto waiting = std::make_shared<GateOperation>();
    auto later = std::make_shared<GateOperation>();
    queue.addOperation(busy);
    queue.addOperation(waiting);
    queue.addOperation(later);
    QVERIFY(busy->entered.tryAcquire(1, 10000));
    QVERIFY(busy->isExecuting());

    waiting->cancel();
    QVERIFY(waiting->isCancelled());
    // It leaves the list at once, though its turn has not come yet.
    QCOMPARE(queue.operationCount(), 2);
    QVERIFY(!queue.operations().contains(waiting));

    gate.release();
    queue.waitUntilAllOperationsAreFinished();
    QVERIFY(!waiting->ran);
    QVERIFY(later->ran);
    QTRY_COMPARE(finished.count(), 2);

    // Cancelling everything before anything ran: nothing runs at all.
    auto blocker = std::make_shared<GateOperation>(&gate);
    auto a = std::make_shared<GateOperation>();
    auto b = std::make_shared<GateOperation>();
    queue.addOperation(blocker);
    queue.addOperation(a);
    queue.addOperation(b);
    QVERIFY(blocker->entered.tryAcquire(1, 10000));
    queue.cancelAllOperations();
    QCOMPARE(queue.operationCount(), 1); // the running one is still there
    gate.release();
    queue.waitUntilAllOperationsAreFinished();
    QVERIFY(!a->ran && !b->ran);
    QCOMPARE(queue.operationCount(), 0);
}

void OperationQueueTest::releasesOperationsAfterMain() {
    std::weak_ptr<GateOperation> watched;
    SXOperationQueue queue;
    {
        auto op = std::make_shared<GateOperation>();
        watched = op;
        queue.addOperation(op);
    }
    queue.waitUntilAllOperationsAreFinished();
    QTRY_VERIFY(watched.expired());
}

SONORIA_TEST_MAIN(OperationQueueTest)
#include "tst_operationqueue.moc"
