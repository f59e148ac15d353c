#include "replay/Session.h"

#include <QCoreApplication>
#include <QEvent>
#include <QImage>
#include <QTemporaryDir>
#include <QTest>

using replay::Json;
using replay::Session;

namespace {

Json newProbe(const char* name = "t", int id = 5)
{
    return {{"do", "new"},
            {"class", "BaseTableProbe"},
            {"name", name},
            {"args", Json::array({id, 2, true, true, 2, false})}};
}

Json call(const char* op, Json args = Json::array(), const char* on = "t")
{
    return {{"do", "call"}, {"on", on}, {"op", op}, {"args", std::move(args)}};
}

Json dump(const char* on = "t")
{
    return {{"do", "dump"}, {"on", on}};
}

Json taskDialog(int orderType)
{
    const Json account = {{"brokerType", 2}, {"accountId", "1"}, {"accountName", "甲"}};
    const Json task = {{"orderType", orderType}, {"account", account}};
    return {{"do", "new"},
            {"class", "CBaseTaskParamWidget"},
            {"name", "d"},
            {"args", Json::array({task, "", false, 1, false, ""})}};
}

QByteArray text(const Json& json)
{
    return QByteArray::fromStdString(json.dump());
}

/// Counts what the whole application paints while it lives.
class PaintCounter : public QObject
{
public:
    PaintCounter()
    {
        qApp->installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override
    {
        paints += event->type() == QEvent::Paint ? 1 : 0;
        return false;
    }

    int paints = 0;
};

} // namespace

class tst_Session : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void anAnswerHasEveryKey();
    void wrongCommandsSayWhatWouldBeAcceptedAndChangeNothing_data();
    void wrongCommandsSayWhatWouldBeAcceptedAndChangeNothing();
    void aNameIsFreeAgainAfterDeletion();
    void resetTakesEverythingBack();
    void hooksAreCountedPerCommand();
    void eventsStandInTheOrderOfArrivalWithTheirData();
    void anEventGivenToAnObjectAnswersWhetherItWasHandled();
    void aDerivedNameHidesTheBaseOperation();
    void overloadsAreToldApartByTheirArguments();
    void aWrongInputIsFalseAndKeepsTheValue();
    void whatNoPersonCouldDoIsWrong();
    void hiddenButtonsCannotBeClicked();
    void aButtonWithoutTextTakesNoRoom();
    void aHostAddsCellsAndButtons();
    void showingAndResizingLeaveTheSizeGiven();
    void whatIsShownIsPaintedBetweenTwoCommands();
    void aScreenshotIsAPicture();
    void aDialogsButtonExpandsItsTable();
    void aModeButtonInADialogIsWithinReach();
    void aButtonOfAHostComesBeforeTheHelpButton();
    void aContractWithoutDataHasANullKey();
};

void tst_Session::anAnswerHasEveryKey()
{
    Session session;
    QCOMPARE(text(session.run(newProbe())),
             QByteArray("{\"ok\":true,\"result\":null,\"events\":[],\"saves\":0,\"reloads\":0}"));
}

void tst_Session::wrongCommandsSayWhatWouldBeAcceptedAndChangeNothing_data()
{
    QTest::addColumn<QByteArray>("command");
    QTest::addColumn<QByteArray>("said");
    const auto row = [](const char* name, const char* command, const char* said) {
        QTest::newRow(name) << QByteArray(command) << QByteArray(said);
    };
    row("no object at all", "[]", "object");
    row("no command", "{\"on\":\"t\"}", "clientMode");
    row("an unknown command", "{\"do\":\"jump\"}", "filterReset");
    row("a key is missing", "{\"do\":\"call\",\"on\":\"t\"}", "op");
    row("a key too many", "{\"do\":\"dump\",\"on\":\"t\",\"of\":1}", "of");
    row("no such object", "{\"do\":\"dump\",\"on\":\"u\"}", "u");
    row("a name that is taken", "{\"do\":\"new\",\"class\":\"CreditProbe\",\"name\":\"t\"}", "already");
    row("a name that is none", "{\"do\":\"new\",\"class\":\"CreditProbe\",\"name\":\"\"}", "name");
    row("no such class", "{\"do\":\"new\",\"class\":\"Table\",\"name\":\"u\"}", "BaseTableProbe");
    row("wrong count for a constructor", "{\"do\":\"new\",\"class\":\"CreditProbe\",\"name\":\"u\",\"args\":[1]}",
        "list of 0");
    row("no such operation", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"fly\"}", "fly");
    row("arguments that are no list", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderType\",\"args\":1}", "list of 1");
    row("too few arguments", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderType\",\"args\":[]}",
        "setOrderType(type)");
    row("a text for an integer", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderType\",\"args\":[\"1\"]}", "integer");
    row("a fraction for an integer", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderType\",\"args\":[1.5]}",
        "integer");
    row("an integer past 32 bits", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderType\",\"args\":[4294967296]}",
        "32 bits");
    row("an integer for a boolean", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setExpandItemsHidden\",\"args\":[1]}",
        "true or false");
    row("a second argument that is wrong", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"setOrderSettings\",\"args\":[1,3]}",
        "argument 2");
    row("an unknown field", "{\"do\":\"call\",\"on\":\"t\",\"op\":\"orderSetting2Param\",\"args\":[{\"colour\":1}]}",
        "intField2");
    row("a field of a wrong type",
        "{\"do\":\"call\",\"on\":\"t\",\"op\":\"orderSetting2Param\",\"args\":[{\"flag35\":1}]}", "flag35");
    row("a size of one", "{\"do\":\"resize\",\"on\":\"t\",\"size\":[100]}", "width, height");
    row("a module without group", "{\"do\":\"modules\",\"on\":[\"mdl_order\"]}", "group/module");
    row("an unknown theme", "{\"do\":\"theme\",\"name\":\"neon\"}", "dark");
    row("a clock of text", "{\"do\":\"clock\",\"epoch\":\"noon\"}", "seconds");
    row("an event of three", "{\"do\":\"event\",\"on\":\"t\",\"args\":[73,1,0]}", "text");
    row("data of no kind", "{\"do\":\"event\",\"on\":\"t\",\"args\":[73,1,0,\"\"],\"data\":{\"long\":1}}", "variant");
    row("an edit of nothing", "{\"do\":\"edit\",\"on\":\"t\",\"cell\":1}", "value");
    row("two values in one edit", "{\"do\":\"edit\",\"on\":\"t\",\"cell\":1,\"index\":1,\"text\":\"x\"}", "one of");
    row("half a range", "{\"do\":\"edit\",\"on\":\"t\",\"cell\":1,\"low\":1}", "together");
    row("a picture nowhere", "{\"do\":\"screenshot\",\"on\":\"t\",\"file\":\"/nowhere/at/all.png\"}", "/nowhere");
}

void tst_Session::wrongCommandsSayWhatWouldBeAcceptedAndChangeNothing()
{
    QFETCH(QByteArray, command);
    QFETCH(QByteArray, said);
    Session session;
    session.run(newProbe());
    const QByteArray before = text(session.run(dump()));
    const Json answer = session.run(Json::parse(command.toStdString()));
    QCOMPARE(answer["ok"].get<bool>(), false);
    QVERIFY2(QByteArray::fromStdString(answer["error"].get<std::string>()).contains(said), text(answer).constData());
    QVERIFY(answer["events"].empty());
    QCOMPARE(text(session.run(dump())), before);
}

void tst_Session::aNameIsFreeAgainAfterDeletion()
{
    Session session;
    session.run(newProbe());
    QVERIFY(session.run({{"do", "delete"}, {"on", "t"}})["ok"].get<bool>());
    QVERIFY(!session.object(QStringLiteral("t")));
    QVERIFY(!session.run(dump())["ok"].get<bool>());
    QVERIFY(session.run(newProbe("t", 31))["ok"].get<bool>());
    QCOMPARE(session.run(call("getId"))["result"].get<int>(), 31);
}

void tst_Session::resetTakesEverythingBack()
{
    Session session;
    session.run(newProbe());
    session.run({{"do", "scale"}, {"value", 2.0}});
    session.run({{"do", "clock"}, {"epoch", 0}});
    QVERIFY(session.run({{"do", "reset"}})["ok"].get<bool>());
    QVERIFY(!session.object(QStringLiteral("t")));
    session.run(newProbe());
    QCOMPARE(session.run(dump())["result"]["strip"]["height"].get<int>(), 28);
    QVERIFY(session.run(call("getDefault"))["result"]["validTimeStart"].get<int>() > 24 * 60 * 60);
}

void tst_Session::hooksAreCountedPerCommand()
{
    Session session;
    session.run(newProbe());
    const Json selected = session.run(call("selectPrice", Json::array({5})));
    QCOMPARE(selected["saves"].get<int>(), 1);
    QCOMPARE(selected["reloads"].get<int>(), 0);
    QCOMPARE(session.run(call("orderType"))["saves"].get<int>(), 0);
    QCOMPARE(session.run(call("reloadParam"))["reloads"].get<int>(), 1);
}

void tst_Session::eventsStandInTheOrderOfArrivalWithTheirData()
{
    Session session;
    session.run(newProbe());
    const Json edited = session.run({{"do", "edit"}, {"on", "t"}, {"cell", 1}, {"value", 13}});
    QCOMPARE(edited["result"].get<bool>(), true);
    const Json& events = edited["events"];
    QCOMPARE(int(events.size()), 2);
    QCOMPARE(events[0][0].get<int>(), 129);
    QCOMPARE(events[1][0].get<int>(), 73);
    QCOMPARE(text(events[1][4]), QByteArray("{\"variant\":13}"));
    const Json clicked = session.run({{"do", "click"}, {"on", "t"}, {"button", 600}});
    QCOMPARE(text(clicked["events"].back()), QByteArray("[1206,0,0,\"普通交易\",{\"widget\":\"t\"}]"));
}

void tst_Session::anEventGivenToAnObjectAnswersWhetherItWasHandled()
{
    Session session;
    session.run(newProbe());
    Json event = {{"do", "event"}, {"on", "t"}, {"args", Json::array({97, 1, 0, ""})}};
    QCOMPARE(session.run(event)["result"].get<bool>(), true);
    event["args"] = Json::array({73, 1, 0, ""});
    event["data"] = {{"variant", 5}};
    QCOMPARE(session.run(event)["result"].get<bool>(), false);
    event["args"] = Json::array({1213, 5, 0, ""});
    event["data"] = {{"int", 6}};
    QCOMPARE(session.run(event)["result"].get<bool>(), true);
}

void tst_Session::aDerivedNameHidesTheBaseOperation()
{
    Session session;
    session.run({{"do", "new"},
                 {"class", "CGlobalOrderParamTable"},
                 {"name", "t"},
                 {"args", Json::array({5, 2, true, true, 2, false})}});
    session.run(call("setStockCode", Json::array({"600000"})));
    QCOMPARE(session.run(call("getStockCode"))["result"].get<std::string>(), std::string());
    session.run({{"do", "new"},
                 {"class", "CCodeOrderParamTable"},
                 {"name", "c"},
                 {"args", Json::array({5, 2, true, 2, true})}});
    session.run(call("setStockCode", Json::array({"600000"}), "c"));
    QCOMPARE(session.run(call("getStockCode", Json::array(), "c"))["result"].get<std::string>(), std::string("600000"));
}

void tst_Session::overloadsAreToldApartByTheirArguments()
{
    Session session;
    session.run({{"do", "new"},
                 {"class", "CGlobalOrderParamTable"},
                 {"name", "t"},
                 {"args", Json::array({5, 2, true, true, 2, false})}});
    QVERIFY(session.run(call("setParam", Json::array({"1^2"})))["ok"].get<bool>());
    QVERIFY(session.run(call("setParam", Json::array({Json{{"intField2", 4}}})))["ok"].get<bool>());
    const Json wrong = session.run(call("setParam", Json::array({4})));
    QVERIFY(!wrong["ok"].get<bool>());
    const QByteArray error = text(wrong["error"]);
    QVERIFY2(error.contains("setParam(text)") && error.contains("setParam(setting)"), error.constData());
}

void tst_Session::aWrongInputIsFalseAndKeepsTheValue()
{
    Session session;
    session.run(newProbe());
    const Json wrong = session.run({{"do", "edit"}, {"on", "t"}, {"cell", 2}, {"value", 1000}});
    QCOMPARE(wrong["ok"].get<bool>(), true);
    QCOMPARE(wrong["result"].get<bool>(), false);
    QVERIFY(wrong["events"].empty());
    const Json value = session.run({{"do", "grid"}, {"on", "t"}, {"op", "itemDouble"}, {"args", Json::array({2})}});
    QCOMPARE(value["result"].get<double>(), 0.5);
}

void tst_Session::whatNoPersonCouldDoIsWrong()
{
    Session session;
    session.run(newProbe());
    Json edit = {{"do", "edit"}, {"on", "t"}, {"cell", 33554432}, {"value", 5}};
    QVERIFY2(!session.run(edit)["ok"].get<bool>(), "a hidden cell");
    edit["cell"] = 3;
    QVERIFY2(!session.run(edit)["ok"].get<bool>(), "no cell");
    session.run(call("setAllItemEnable", Json::array({false})));
    edit = {{"do", "edit"}, {"on", "t"}, {"cell", 1}, {"index", 1}};
    QVERIFY2(!session.run(edit)["ok"].get<bool>(), "a disabled cell");
    session.run(call("setAllItemEnable", Json::array({true})));
    QVERIFY(session.run(edit)["ok"].get<bool>());
    QVERIFY2(!session.run({{"do", "filter"}, {"on", "t"}, {"cells", Json::array()}})["ok"].get<bool>(), "no cells");
    QVERIFY2(!session.run({{"do", "filter"}, {"on", "t"}, {"cells", Json::array({1048576})}})["ok"].get<bool>(),
             "not offered");
    session.run(call("setExpandItemsHidden", Json::array({false})));
    QVERIFY2(!session.run({{"do", "filterReset"}, {"on", "t"}})["ok"].get<bool>(), "expanded");
}

void tst_Session::hiddenButtonsCannotBeClicked()
{
    Session session;
    session.run(newProbe());
    const Json click = {{"do", "click"}, {"on", "t"}, {"button", 600}};
    const Json help = {{"do", "click"}, {"on", "t"}, {"button", 0}};
    session.run(call("setOrderType", Json::array({5})));
    const Json helped = session.run(help);
    QCOMPARE(int(helped["events"].size()), 1);
    QCOMPARE(helped["events"][0][0].get<int>(), 5);
    QCOMPARE(helped["events"][0][1].get<int>(), 0);
    QVERIFY(session.run(click)["ok"].get<bool>());
    QVERIFY2(!session.run(help)["ok"].get<bool>(), "plain orders have no help page");
    QVERIFY(!session.run({{"do", "click"}, {"on", "t"}, {"button", 601}})["ok"].get<bool>());
    session.run(call("setVisibleByID", Json::array({600, false})));
    QVERIFY(!session.run(click)["ok"].get<bool>());
}

// Button 603 has no text on identity 38, the group shows none of it.
void tst_Session::aButtonWithoutTextTakesNoRoom()
{
    Session session;
    session.run({{"do", "modules"}, {"on", Json::array({"mdl_order/mdl_order_algorithm3"})}});
    session.run({{"do", "new"},
                 {"class", "BaseTableProbe"},
                 {"name", "t"},
                 {"args", Json::array({38, 1, true, true, -1, true})}});
    const Json dumped = session.run(dump());
    bool isThere = false;
    for (const Json& button : dumped["result"]["buttons"]) {
        if (button["id"].get<int>() != 603)
            continue;
        isThere = true;
        QCOMPARE(button["text"].get<std::string>(), std::string());
        QCOMPARE(button["hidden"].get<bool>(), true);
    }
    QVERIFY(isThere);
    QVERIFY(!session.run({{"do", "click"}, {"on", "t"}, {"button", 603}})["ok"].get<bool>());
}

void tst_Session::aHostAddsCellsAndButtons()
{
    Session session;
    session.run(newProbe());
    const Json button = {{"do", "addButton"}, {"on", "t"}, {"id", 608}, {"text", "冰山"}};
    QCOMPARE(session.run(button)["result"].get<int>(), 1);
    QVERIFY2(!session.run(button)["ok"].get<bool>(), "an ID that the group has");
    QCOMPARE(session.run(call("getBtnNameByID", Json::array({608})))["result"].get<std::string>(), std::string("冰山"));
    const Json cell = {{"do", "grid"},
                       {"on", "t"},
                       {"op", "addParamCell"},
                       {"args", Json::array({1048576, "触发价", 6, 0, 100, 0.01, "元", 3.5, -1})}};
    QVERIFY(session.run(cell)["result"].get<int>() > 0);
    QCOMPARE(session.run(cell)["result"].get<int>(), -1);
    const Json item = session.run({{"do", "grid"}, {"on", "t"}, {"op", "getItem"}, {"args", Json::array({1048576})}});
    QCOMPARE(item["result"]["unit"].get<std::string>(), std::string("元"));
}

void tst_Session::showingAndResizingLeaveTheSizeGiven()
{
    Session session;
    session.run(newProbe());
    session.run({{"do", "resize"}, {"on", "t"}, {"size", Json::array({240, 500})}});
    QVERIFY(session.run({{"do", "show"}, {"on", "t"}})["ok"].get<bool>());
    QVERIFY(session.object(QStringLiteral("t"))->isVisible());
    QCOMPARE(session.object(QStringLiteral("t"))->size(), QSize(240, 500));
}

// What Qt posts for a shown widget would pile up in a long run.
void tst_Session::whatIsShownIsPaintedBetweenTwoCommands()
{
    Session session;
    session.run(newProbe());
    session.run({{"do", "show"}, {"on", "t"}});
    PaintCounter counter;
    session.run(call("setOrderType", Json::array({1})));
    QVERIFY(counter.paints > 0);
}

void tst_Session::aScreenshotIsAPicture()
{
    const QTemporaryDir folder;
    const QString file = folder.filePath(QStringLiteral("panel.png"));
    Session session;
    session.run(newProbe());
    QVERIFY(session.run({{"do", "screenshot"}, {"on", "t"}, {"file", file.toStdString()}})["ok"].get<bool>());
    QCOMPARE(QImage(file).size(), session.object(QStringLiteral("t"))->size());
}

void tst_Session::aDialogsButtonExpandsItsTable()
{
    Session session;
    QVERIFY(session.run(taskDialog(1))["ok"].get<bool>());
    QCOMPARE(session.run(dump("d"))["result"]["expanded"].get<bool>(), false);
    QVERIFY(session.run({{"do", "click"}, {"on", "d"}, {"button", 0}})["ok"].get<bool>());
    QCOMPARE(session.run(dump("d"))["result"]["expanded"].get<bool>(), true);
    QVERIFY(!session.run({{"do", "click"}, {"on", "d"}, {"button", 7}})["ok"].get<bool>());
}

void tst_Session::aModeButtonInADialogIsWithinReach()
{
    Session session;
    QVERIFY(session.run(taskDialog(11))["ok"].get<bool>());
    const auto tableOf = [&session] { return session.run(dump("d"))["result"]["table"]; };
    QCOMPARE(tableOf()["strip"]["hidden"].get<bool>(), false);
    const Json clicked = session.run({{"do", "click"}, {"on", "d"}, {"button", 600}});
    QVERIFY(clicked["ok"].get<bool>());
    QCOMPARE(clicked["events"][0][0].get<int>(), 1064);
    QCOMPARE(tableOf()["orderType"].get<int>(), 0);
    QCOMPARE(tableOf()["strip"]["hidden"].get<bool>(), true);
    QVERIFY(!session.run({{"do", "click"}, {"on", "d"}, {"button", 600}})["ok"].get<bool>());
}

void tst_Session::aButtonOfAHostComesBeforeTheHelpButton()
{
    Session session;
    session.run(newProbe());
    session.run({{"do", "addButton"}, {"on", "t"}, {"id", 0}, {"text", "甲"}});
    const Json clicked = session.run({{"do", "click"}, {"on", "t"}, {"button", 0}});
    QVERIFY(clicked["ok"].get<bool>());
    QCOMPARE(text(clicked["events"]), QByteArray(R"([[5,0,0,"甲",null]])"));
}

void tst_Session::aContractWithoutDataHasANullKey()
{
    Session session;
    session.run({{"do", "new"}, {"class", "CreditProbe"}, {"name", "c"}});
    const Json contract = {{"unrepaidVolume", 100}, {"unrepaidFees", 2.5}, {"key", nullptr}};
    QVERIFY(session.run(call("setStkCompacts", Json::array({contract, "1", false}), "c"))["ok"].get<bool>());
    QVERIFY(session.run(call("setStkCompacts", Json::array({nullptr, "1", false}), "c"))["ok"].get<bool>());
    QVERIFY(!session.run(call("setStkCompacts", Json::array({5, "1", false}), "c"))["ok"].get<bool>());
    const Json found = session.run(call("getCompatctByCode", Json::array({"600000", nullptr, ""}), "c"));
    QVERIFY(found["ok"].get<bool>());
}

QTEST_MAIN(tst_Session)
#include "tst_Session.moc"
