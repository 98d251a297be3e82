#include <utilsDll/ProgressBox.h>
#include <utilsDll/RunnableItem.h>

#include <QApplication>
#include <QThread>

/// Work in steps that reports its progress and can be stopped.
class Develop : public CQRunnableItem
{
    Q_OBJECT

public:
    Develop() { setAutoDelete(false); }

Q_SIGNALS:
    void progressed(qint64 done, qint64 total);

private:
    bool doRun() override
    {
        const int rows = 40;
        for (int row = 1; row <= rows; ++row) {
            if (stopRequired()) {
                return false;
            }
            QThread::msleep(5); // the work on one row of the photograph
            Q_EMIT progressed(row, rows);
        }
        return true;
    }
};

int main(int argc, char* argv[])
{
    const QApplication application(argc, argv);
    Develop work;
    CProgressBox box(QStringLiteral("Developing the photograph"));
    QObject::connect(&work, SIGNAL(progressed(qint64, qint64)), &box, SLOT(setProgress(qint64, qint64)));
    return box.run(work) == CProgressBox::Succeeded ? 0 : 1;
}

#include "main.moc"
