#include "engine/SXOperationQueue.h"
#include "support/TestSupport.h"

#include <QScopeGuard>
#include <QSemaphore>
#include <QSignalSpy>
#include <atomic>

namespace {
// What the operations of one test share: a gate that holds them, and how many run at once.
struct Gate {
    QSemaphore open;
    std::atomic<int> running{0};
    std::atomic<int> peak{0};
};

// Records that it ran and, when given a gate, holds its worker until the test opens it.
class GateOperation : public SXOperation {
public:
    explicit GateOperation(Gate* gate = nullptr)
        : m_gate(gate) {}
    void main() override {
        ran = true;
        // Counted before it says it entered: once the test has seen two enter and opens the
        // gate, the first may finish before the second would otherwise have counted itself.
        if (m_gate) {
            const int now = ++m_gate->running;
            for (int seen = m_gate->peak;
                 now > seen && !m_gate->peak.compare_exchange_weak(seen, now);)
                ;
        }
        entered.release();
        if (!m_gate)
            return;
        m_gate->open.acquire();
        --m_gate->running;
    }
    std::atomic<bool> ran{false};
    QSemaphore entered;

private:
    Gate* m_gate;
};
using GatePtr = std::shared_ptr<GateOperation>;
} // namespace

class OperationQueueTest : public QObject {
    Q_OBJECT
private Q_SLOTS:
    // Two run at once, the others wait in the order added. A waiting operation that is
    // cancelled leaves the list at once and never runs. Once done, the queue lets go of every
    // operation.
    void runsInOrderWithinTheLimit() {
        Gate gate;
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(2);
        const auto openGate = qScopeGuard([&gate] { gate.open.release(5); }); // on failure
        QList<GatePtr> ops;
        QList<SXOperationPtr> listed;
        for (int i = 0; i < 5; ++i) {
            ops.append(std::make_shared<GateOperation>(&gate));
            listed.append(ops.last());
            queue.addOperation(ops.last());
        }
        QVERIFY(ops[0]->entered.tryAcquire(1, 10000));
        QVERIFY(ops[1]->entered.tryAcquire(1, 10000));
        QVERIFY(ops[0]->isExecuting());
        QCOMPARE(queue.operations(), listed);
        ops[2]->cancel();
        QVERIFY(ops[2]->isCancelled());
        listed.removeAt(2);
        QCOMPARE(queue.operations(), listed);
        gate.open.release(4); // one each for those that run: a spare would let the next pass
        queue.waitUntilAllOperationsAreFinished();
        QCOMPARE(gate.peak.load(), 2);
        for (int i : {0, 1, 3, 4})
            QVERIFY(ops[i]->ran && ops[i]->isFinished());
        QVERIFY(!ops[2]->ran);
        QCOMPARE(queue.operationCount(), 0);

        std::weak_ptr<GateOperation> watched = ops.first();
        ops.clear();
        listed.clear();
        QTRY_VERIFY(watched.expired());
    }

    // Cancelling everything leaves the running one listed until it ends; the rest never run.
    void cancelAllSkipsTheWaiting() {
        Gate gate; // outlives the queue, which waits for the operations it holds
        SXOperationQueue queue;
        queue.setMaxConcurrentOperationCount(1);
        const auto openGate = qScopeGuard([&gate] { gate.open.release(); }); // also on failure
        // One worker at a time: the spy records on the emitting thread.
        QSignalSpy finished(&queue, &SXOperationQueue::operationFinished);
        const GatePtr blocker = std::make_shared<GateOperation>(&gate);
        const GatePtr waiting = std::make_shared<GateOperation>();
        queue.addOperation(blocker);
        queue.addOperation(waiting);
        QVERIFY(blocker->entered.tryAcquire(1, 10000));
        queue.cancelAllOperations();
        QCOMPARE(queue.operations(), QList<SXOperationPtr>{blocker});
        gate.open.release();
        queue.waitUntilAllOperationsAreFinished();
        QVERIFY(!waiting->ran);
        QCOMPARE(queue.operationCount(), 0);
        QTRY_COMPARE(finished.count(), 1);
    }
};

SONORIA_TEST_MAIN(OperationQueueTest)
#include "tst_operationqueue.moc"
