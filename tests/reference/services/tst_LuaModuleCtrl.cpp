#include "reference/services/ServiceControl.h"

#include <luawrapper/LuaModuleCtrl.h>

#include <QtTest>

using luawrapper::operator<<;

namespace {

bool isOn(std::list<std::string> path)
{
    return luawrapper::LuaModuleCtrl::instance()->checkModule(std::move(path));
}

const QString kRemark = QStringLiteral("mdl_order/mdl_order_command_remark");
const QString kAlgorithm3 = QStringLiteral("mdl_order/mdl_order_algorithm3");

} // namespace

class tst_LuaModuleCtrl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init()
    {
        reference::resetServices();
    }

    void aModuleIsOffUntilItIsNamed()
    {
        const auto path = std::string("mdl_order") << std::string("mdl_order_command_remark");
        QVERIFY(!isOn(path));
        reference::setModule(kRemark, true);
        QVERIFY(isOn(path));
        reference::setModule(kRemark, false);
        QVERIFY(!isOn(path));
    }

    void exactlyTheModulesOfASetAreOn()
    {
        reference::setModule(kRemark, true);
        reference::setModules({kAlgorithm3});
        QVERIFY(!isOn({"mdl_order", "mdl_order_command_remark"}));
        QVERIFY(isOn({"mdl_order", "mdl_order_algorithm3"}));
        QCOMPARE(reference::modules(), QSet<QString>({kAlgorithm3}));
    }

    void aPathOfAnotherShapeIsOff()
    {
        reference::setModule(kAlgorithm3, true);
        QVERIFY(!isOn({}));
        QVERIFY(!isOn({"mdl_order"}));
        QVERIFY(!isOn({"mdl_order/mdl_order_algorithm3"}));
        QVERIFY(!isOn({"mdl_order", "mdl_order_algorithm3", ""}));
        QVERIFY(!isOn({"mdl_order_algorithm3", "mdl_order"}));
        QVERIFY(!isOn({"mdl_alg", "mdl_order_algorithm3"}));
        QVERIFY(!isOn({"MDL_ORDER", "mdl_order_algorithm3"}));
    }

    void resetSwitchesAllOff()
    {
        reference::setModules({kAlgorithm3, kRemark});
        reference::resetServices();
        QCOMPARE(reference::modules(), QSet<QString>());
    }
};

QTEST_APPLESS_MAIN(tst_LuaModuleCtrl)
#include "tst_LuaModuleCtrl.moc"
