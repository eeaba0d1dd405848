#include <QTest>
class TestStub : public QObject
{
    Q_OBJECT
};
QTEST_GUILESS_MAIN(TestStub)
#include "tst_simtemplates.moc"
