// child_starter PROGRAM [ARGUMENT…]: starts PROGRAM as the program starts an ffmpeg child (a
// TaskWrapper inside an operation on an SXOperationQueue worker thread), prints the child's
// process id on standard output and then waits for the child. tst_taskwrapper kills this program
// with SIGKILL and expects the child to go with it.

#include "engine/SXOperationQueue.h"
#include "engine/TaskWrapper.h"

#include <QCoreApplication>
#include <QStringList>
#include <cstdio>
#include <memory>

namespace {

class ChildOperation : public SXOperation {
public:
    explicit ChildOperation(const QStringList& arguments)
        : m_arguments(arguments) {}

    void main() override {
        TaskWrapper wrapper(nullptr, m_arguments);
        wrapper.startProcess();
        std::printf("%lld\n", static_cast<long long>(wrapper.processId()));
        std::fflush(stdout);
        wrapper.waitUntilTaskExit();
        QCoreApplication::exit(0);
    }

private:
    QStringList m_arguments;
};

} // namespace

int main(int argc, char** argv) {
    QCoreApplication app(argc, argv);
    SXOperationQueue queue;
    queue.addOperation(std::make_shared<ChildOperation>(QCoreApplication::arguments().mid(1)));
    return QCoreApplication::exec();
}
