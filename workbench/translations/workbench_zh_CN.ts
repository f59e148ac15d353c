<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en_US">
<context>
    <name>workbench</name>
    <message>
        <source>Write a picture of each panel and dialog into &lt;dir&gt; and end.</source>
        <translation>把每个面板和对话框的图片写入 &lt;dir&gt; 后退出。</translation>
    </message>
    <message>
        <source>UI scale, 1.0 to 3.0.</source>
        <translation>界面缩放，1.0 到 3.0。</translation>
    </message>
    <message>
        <source>Theme by name.</source>
        <translation>主题名称。</translation>
    </message>
    <message>
        <source>en or zh_CN.</source>
        <translation>en 或 zh_CN。</translation>
    </message>
    <message>
        <source>Folder of accounts, tasks and configuration.</source>
        <translation>账号、任务和配置所在的文件夹。</translation>
    </message>
    <message>
        <source>--scale takes a number from 1.0 to 3.0, not &quot;%1&quot;.</source>
        <translation>--scale 需要 1.0 到 3.0 的数字，而不是“%1”。</translation>
    </message>
    <message>
        <source>%1 takes one of %2, not &quot;%3&quot;.</source>
        <translation>%1 只能取 %2 之一，而不是“%3”。</translation>
    </message>
    <message>
        <source>Shows every order-parameter table and dialog, and the events they send.</source>
        <translation>显示每个下单参数表和对话框，以及它们发出的事件。</translation>
    </message>
    <message>
        <source>Show &amp;parts</source>
        <translation>显示的部分(&amp;P)</translation>
    </message>
    <message>
        <source>Modules and host</source>
        <translation>模块与宿主</translation>
    </message>
    <message>
        <source>&amp;Quote moves</source>
        <translation>行情变动(&amp;Q)</translation>
    </message>
    <message>
        <source> a second</source>
        <translation> 次/秒</translation>
    </message>
    <message>
        <source>Updates of the quote</source>
        <translation>行情更新频率</translation>
    </message>
    <message>
        <source>usual client</source>
        <translation>普通客户端</translation>
    </message>
    <message>
        <source>announces volume changes</source>
        <translation>通知数量变化</translation>
    </message>
    <message>
        <source>announces volume changes, too</source>
        <translation>同样通知数量变化</translation>
    </message>
    <message>
        <source>Client mode (&amp;j)</source>
        <translation>客户端模式(&amp;J)</translation>
    </message>
    <message>
        <source>Free&amp;ze the clock at</source>
        <translation>时钟停在(&amp;Z)</translation>
    </message>
    <message>
        <source>Time of the clock</source>
        <translation>时钟时间</translation>
    </message>
    <message>
        <source>Step of the clock</source>
        <translation>时钟步长</translation>
    </message>
    <message>
        <source> s</source>
        <translation> 秒</translation>
    </message>
    <message>
        <source>Advance</source>
        <translation>前进</translation>
    </message>
    <message>
        <source>The state of the last run cannot be read and is set aside as %1.</source>
        <translation>无法读取上次运行的状态，已另存为 %1。</translation>
    </message>
    <message>
        <source>The state of the last run was damaged and is set aside as %1.</source>
        <translation>上次运行的状态已损坏，已另存为 %1。</translation>
    </message>
    <message>
        <source>The state was written by a later version; a copy of it is %1.</source>
        <translation>状态由更新的版本写入，其副本为 %1。</translation>
    </message>
    <message>
        <source>The state of the last run, %1, is not used and cannot be set aside.</source>
        <translation>上次运行的状态 %1 未被使用，也无法移走。</translation>
    </message>
    <message>
        <source>The state cannot be kept in %1: %2</source>
        <translation>无法将状态保存到 %1：%2</translation>
    </message>
    <message>
        <source>Say when the event loop is held for more than &lt;ms&gt;.</source>
        <translation>事件循环被占用超过 &lt;ms&gt; 毫秒时给出提示。</translation>
    </message>
    <message>
        <source>Say after how many milliseconds the window is usable, and end.</source>
        <translation>报告窗口在多少毫秒后可用，然后结束。</translation>
    </message>
    <message>
        <source>--watchdog takes milliseconds, not &quot;%1&quot;.</source>
        <translation>--watchdog 需要毫秒数，而不是“%1”。</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>多余的参数“%1”。</translation>
    </message>
    <message>
        <source>--tour takes a folder.</source>
        <translation>--tour 需要一个文件夹。</translation>
    </message>
    <message>
        <source>Operation</source>
        <translation>操作类型</translation>
    </message>
    <message>
        <source>Choose a contract</source>
        <translation>选择合约</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>代码</translation>
    </message>
    <message>
        <source>Enter</source>
        <translation>录入</translation>
    </message>
    <message>
        <source>Parameter string</source>
        <translation>参数串</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>载入</translation>
    </message>
    <message>
        <source>Account %1 · code %2</source>
        <translation>账号 %1 · 代码 %2</translation>
    </message>
    <message>
        <source>button clicked</source>
        <translation>点击按钮</translation>
    </message>
    <message>
        <source>entry chosen</source>
        <translation>选择条目</translation>
    </message>
    <message>
        <source>number committed</source>
        <translation>提交数值</translation>
    </message>
    <message>
        <source>cell double-clicked</source>
        <translation>双击单元格</translation>
    </message>
    <message>
        <source>period committed</source>
        <translation>提交时间段</translation>
    </message>
    <message>
        <source>line committed</source>
        <translation>提交文本</translation>
    </message>
    <message>
        <source>unit or check changed</source>
        <translation>单位或勾选改变</translation>
    </message>
    <message>
        <source>filter applied</source>
        <translation>应用筛选</translation>
    </message>
    <message>
        <source>parameters changed</source>
        <translation>参数改变</translation>
    </message>
    <message>
        <source>parameter double-clicked</source>
        <translation>双击参数</translation>
    </message>
    <message>
        <source>filter reset</source>
        <translation>重置筛选</translation>
    </message>
    <message>
        <source>price type applied</source>
        <translation>应用报价方式</translation>
    </message>
    <message>
        <source>price display</source>
        <translation>价格显示</translation>
    </message>
    <message>
        <source>price display, after hours</source>
        <translation>价格显示（盘后）</translation>
    </message>
    <message>
        <source>order type chosen</source>
        <translation>选择委托类型</translation>
    </message>
    <message>
        <source>needed height changed</source>
        <translation>所需高度改变</translation>
    </message>
    <message>
        <source>contract code emptied</source>
        <translation>合约代码清空</translation>
    </message>
    <message>
        <source>operation still to be chosen</source>
        <translation>尚未选择操作</translation>
    </message>
    <message>
        <source>price type from outside</source>
        <translation>外部设置报价方式</translation>
    </message>
    <message>
        <source>algorithm buttons</source>
        <translation>算法按钮</translation>
    </message>
    <message>
        <source>credit table</source>
        <translation>信用表</translation>
    </message>
    <message>
        <source>table %1</source>
        <translation>表 %1</translation>
    </message>
    <message>
        <source>index %1</source>
        <translation>第 %1 项</translation>
    </message>
    <message>
        <source>No.</source>
        <translation>序号</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Event</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>From</source>
        <translation>来源</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>数据</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>事件</translation>
    </message>
    <message>
        <source>Filter: number, name, cell or text</source>
        <translation>筛选：编号、名称、单元格或文本</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清空</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message>
        <source>Order parameter workbench</source>
        <translation>下单参数工作台</translation>
    </message>
    <message>
        <source>Setup</source>
        <translation>构造</translation>
    </message>
    <message>
        <source>Host calls</source>
        <translation>宿主调用</translation>
    </message>
    <message>
        <source>Tasks</source>
        <translation>任务</translation>
    </message>
    <message>
        <source>Credit</source>
        <translation>信用</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>高对比度</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>&amp;Table</source>
        <translation>表(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Rebuild</source>
        <translation>重建(&amp;R)</translation>
    </message>
    <message>
        <source>Go to the order &amp;panel</source>
        <translation>转到下单面板(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Theme</source>
        <translation>主题(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Larger</source>
        <translation>放大(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Smaller</source>
        <translation>缩小(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Normal size</source>
        <translation>原始大小(&amp;N)</translation>
    </message>
    <message>
        <source>Lan&amp;guage</source>
        <translation>语言(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Events</source>
        <translation>事件(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Filter</source>
        <translation>筛选(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>复制(&amp;C)</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>清空(&amp;L)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>关于(&amp;A)</translation>
    </message>
    <message>
        <source>Order parameter workbench %1

A host for every table and dialog of the library.</source>
        <translation>下单参数工作台 %1

承载本库每个参数表和对话框的宿主程序。</translation>
    </message>
    <message>
        <source>Order type %1 · operation %2 · price type %3 %4 · code %5</source>
        <translation>委托类型 %1 · 操作 %2 · 报价方式 %3 %4 · 代码 %5</translation>
    </message>
    <message>
        <source>&amp;Order type</source>
        <translation>委托类型(&amp;O)</translation>
    </message>
    <message>
        <source>O&amp;peration</source>
        <translation>操作类型(&amp;P)</translation>
    </message>
    <message>
        <source>E&amp;xpanded</source>
        <translation>展开(&amp;X)</translation>
    </message>
    <message>
        <source>Cells e&amp;nabled</source>
        <translation>允许编辑(&amp;N)</translation>
    </message>
    <message>
        <source>Instrument &amp;code</source>
        <translation>合约代码(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Specified price</source>
        <translation>指定价(&amp;S)</translation>
    </message>
    <message>
        <source>Set</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Global table</source>
        <translation>全局参数表</translation>
    </message>
    <message>
        <source>Code table</source>
        <translation>代码参数表</translation>
    </message>
    <message>
        <source>Stop-loss table</source>
        <translation>止损参数表</translation>
    </message>
    <message>
        <source>&amp;Identity</source>
        <translation>表标识(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Broker type</source>
        <translation>账号类型(&amp;B)</translation>
    </message>
    <message>
        <source>T&amp;rader type</source>
        <translation>交易端类型(&amp;R)</translation>
    </message>
    <message>
        <source>Order-&amp;mode buttons</source>
        <translation>委托方式按钮(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;Automatic order book allowed</source>
        <translation>允许自动盘口(&amp;A)</translation>
    </message>
    <message>
        <source>Table c&amp;lass</source>
        <translation>表类(&amp;L)</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账号</translation>
    </message>
    <message>
        <source>Broker type</source>
        <translation>账号类型</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Order type</source>
        <translation>委托类型</translation>
    </message>
    <message>
        <source>Price type</source>
        <translation>报价方式</translation>
    </message>
    <message>
        <source>Price</source>
        <translation>价格</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Trader type</source>
        <translation>交易端类型</translation>
    </message>
    <message>
        <source>Automatic order book</source>
        <translation>自动盘口</translation>
    </message>
    <message>
        <source>Open basket</source>
        <translation>打开篮子</translation>
    </message>
    <message>
        <source>Cannot write %1.</source>
        <translation>无法写入 %1。</translation>
    </message>
    <message>
        <source>Cannot make the folder %1.</source>
        <translation>无法创建文件夹 %1。</translation>
    </message>
    <message>
        <source>general</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>no remark</source>
        <translation>无备注</translation>
    </message>
    <message>
        <source>order panel with limit price</source>
        <translation>带限价的下单面板</translation>
    </message>
    <message>
        <source>composite stock</source>
        <translation>组合股票</translation>
    </message>
    <message>
        <source>composite futures</source>
        <translation>组合期货</translation>
    </message>
    <message>
        <source>composite futures, always algorithm</source>
        <translation>组合期货，始终算法</translation>
    </message>
    <message>
        <source>limit price</source>
        <translation>限价</translation>
    </message>
    <message>
        <source>no target volume</source>
        <translation>无目标量</translation>
    </message>
    <message>
        <source>order service, model price</source>
        <translation>委托服务，模型价</translation>
    </message>
    <message>
        <source>order service</source>
        <translation>委托服务</translation>
    </message>
    <message>
        <source>order service, composite stock</source>
        <translation>委托服务，组合股票</translation>
    </message>
    <message>
        <source>stock task</source>
        <translation>股票任务</translation>
    </message>
    <message>
        <source>futures task</source>
        <translation>期货任务</translation>
    </message>
    <message>
        <source>option task</source>
        <translation>期权任务</translation>
    </message>
    <message>
        <source>strip hidden</source>
        <translation>隐藏按钮栏</translation>
    </message>
    <message>
        <source>always algorithm</source>
        <translation>始终算法</translation>
    </message>
    <message>
        <source>close settings, book levels</source>
        <translation>平仓设置，盘口档位</translation>
    </message>
    <message>
        <source>book levels</source>
        <translation>盘口档位</translation>
    </message>
    <message>
        <source>close settings, no option market types</source>
        <translation>平仓设置，无期权市价</translation>
    </message>
    <message>
        <source>close settings</source>
        <translation>平仓设置</translation>
    </message>
    <message>
        <source>futures</source>
        <translation>期货</translation>
    </message>
    <message>
        <source>stock</source>
        <translation>股票</translation>
    </message>
    <message>
        <source>credit</source>
        <translation>信用</translation>
    </message>
    <message>
        <source>points</source>
        <translation>点数</translation>
    </message>
    <message>
        <source>option</source>
        <translation>期权</translation>
    </message>
    <message>
        <source>Hong Kong</source>
        <translation>港股</translation>
    </message>
    <message>
        <source>like stock</source>
        <translation>同股票</translation>
    </message>
    <message>
        <source>like stock, short book</source>
        <translation>同股票，短盘口</translation>
    </message>
    <message>
        <source>points, book levels</source>
        <translation>点数，盘口档位</translation>
    </message>
    <message>
        <source>desk 1</source>
        <translation>交易端 1</translation>
    </message>
    <message>
        <source>desk 2</source>
        <translation>交易端 2</translation>
    </message>
    <message>
        <source>desk without task facts</source>
        <translation>任务无信息列</translation>
    </message>
    <message>
        <source>like 4 in composite lists</source>
        <translation>组合列表同 4</translation>
    </message>
    <message>
        <source>plain order</source>
        <translation>普通交易</translation>
    </message>
    <message>
        <source>algorithm</source>
        <translation>智能算法</translation>
    </message>
    <message>
        <source>random volume</source>
        <translation>随机量</translation>
    </message>
    <message>
        <source>algorithm 3</source>
        <translation>算法三</translation>
    </message>
    <message>
        <source>parameter set 5</source>
        <translation>参数组 5</translation>
    </message>
    <message>
        <source>plain order as a task</source>
        <translation>普通交易任务</translation>
    </message>
    <message>
        <source>algorithm as a task</source>
        <translation>算法任务</translation>
    </message>
    <message>
        <source>parameter set 12</source>
        <translation>参数组 12</translation>
    </message>
    <message>
        <source>parameter set 13</source>
        <translation>参数组 13</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>none chosen</source>
        <translation>未选择</translation>
    </message>
    <message>
        <source>cleared</source>
        <translation>已清除</translation>
    </message>
    <message>
        <source>any other operation</source>
        <translation>其他操作</translation>
    </message>
    <message>
        <source>sell borrowed securities</source>
        <translation>融券卖出</translation>
    </message>
    <message>
        <source>repay securities by buying</source>
        <translation>买券还券</translation>
    </message>
    <message>
        <source>repay securities held</source>
        <translation>现券还券</translation>
    </message>
    <message>
        <source>repay cash by selling</source>
        <translation>卖券还款</translation>
    </message>
    <message>
        <source>repay cash held</source>
        <translation>直接还款</translation>
    </message>
    <message>
        <source>without base price</source>
        <translation>无基准价</translation>
    </message>
    <message>
        <source>pay lending fees</source>
        <translation>归还融券息费</translation>
    </message>
    <message>
        <source>unknown to the table</source>
        <translation>表未知的操作</translation>
    </message>
    <message numerus="yes">
        <source>%n event(s)</source>
        <translation>
            <numerusform>%n 个事件</numerusform>
        </translation>
    </message>
    <message>
        <source>Task</source>
        <translation>任务</translation>
    </message>
    <message numerus="yes">
        <source>Basket of %n task(s)</source>
        <translation>
            <numerusform>%n 个任务的篮子</numerusform>
        </translation>
    </message>
    <message>
        <source>&amp;Display theme</source>
        <translation>主题(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;UI scale</source>
        <translation>界面缩放(&amp;U)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Cells allowed by the host (&amp;flags)</source>
        <translation>宿主允许的单元格(&amp;F)</translation>
    </message>
    <message>
        <source>Table follo&amp;ws the UI scale</source>
        <translation>表格随界面缩放(&amp;W)</translation>
    </message>
    <message>
        <source>Feature modules (&amp;y)</source>
        <translation>功能模块(&amp;Y)</translation>
    </message>
    <message>
        <source>Click: this price type. Double-click: this price, specified.</source>
        <translation>单击：选此报价方式。双击：以此价为指定价。</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>档位</translation>
    </message>
    <message>
        <source>Quote</source>
        <translation>行情</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>字段</translation>
    </message>
    <message>
        <source>Ticket</source>
        <translation>委托单</translation>
    </message>
    <message>
        <source>order type</source>
        <translation>委托类型</translation>
    </message>
    <message>
        <source>operation</source>
        <translation>操作类型</translation>
    </message>
    <message>
        <source>price type</source>
        <translation>报价方式</translation>
    </message>
    <message>
        <source>volume type</source>
        <translation>量类型</translation>
    </message>
    <message>
        <source>price for amounts</source>
        <translation>计算金额的价格</translation>
    </message>
    <message>
        <source>Price type (&amp;k)</source>
        <translation>报价方式(&amp;K)</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>cannot be read</source>
        <translation>无法读取</translation>
    </message>
    <message>
        <source>cannot be written</source>
        <translation>无法写入</translation>
    </message>
    <message>
        <source>is no UTF-8 text</source>
        <translation>不是 UTF-8 文本</translation>
    </message>
    <message>
        <source>is no JSON</source>
        <translation>不是 JSON</translation>
    </message>
    <message>
        <source>nests too deep</source>
        <translation>嵌套过深</translation>
    </message>
    <message>
        <source>is no command: an object with &quot;do&quot; is expected</source>
        <translation>不是命令：应为带“do”的对象</translation>
    </message>
    <message>
        <source>is no answer: an object is expected</source>
        <translation>不是应答：应为对象</translation>
    </message>
    <message>
        <source>answers and commands differ in number</source>
        <translation>应答与命令的数目不同</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>The replay program %1 cannot be started.</source>
        <translation>无法启动回放程序 %1。</translation>
    </message>
    <message>
        <source>The replay program answers what is no answer: %1</source>
        <translation>回放程序的应答无效：%1</translation>
    </message>
    <message>
        <source>The replay program ended at step %1. %2</source>
        <translation>回放程序在第 %1 步结束。%2</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>单步</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message>
        <source>Object</source>
        <translation>对象</translation>
    </message>
    <message>
        <source>Arguments</source>
        <translation>参数</translation>
    </message>
    <message>
        <source>Heard</source>
        <translation>听到的事件</translation>
    </message>
    <message>
        <source>Replayed</source>
        <translation>回放结果</translation>
    </message>
    <message>
        <source>error: %1</source>
        <translation>错误：%1</translation>
    </message>
    <message>
        <source>done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>same</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>differs: %1</source>
        <translation>不同：%1</translation>
    </message>
    <message>
        <source>What the replayed object looks like</source>
        <translation>回放对象的画面</translation>
    </message>
    <message>
        <source>Replay: step %1 of %2</source>
        <translation>回放：第 %1 步，共 %2 步</translation>
    </message>
    <message>
        <source>Replay scripts (*.jsonl)</source>
        <translation>回放脚本 (*.jsonl)</translation>
    </message>
    <message>
        <source>Recorded steps</source>
        <translation>录制的步骤</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Record from here on; the way to the present situation comes first</source>
        <translation>从此处开始录制；到达当前状态的步骤列在最前</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>End the recording or the replay</source>
        <translation>结束录制或回放</translation>
    </message>
    <message>
        <source>Replay the next step, beside the live panels</source>
        <translation>回放下一步，不影响当前面板</translation>
    </message>
    <message>
        <source>Replay</source>
        <translation>回放</translation>
    </message>
    <message>
        <source>Replay all steps that are left, beside the live panels</source>
        <translation>回放剩余的全部步骤，不影响当前面板</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Save the script, and what was heard beside it</source>
        <translation>保存脚本，听到的事件另存于旁</translation>
    </message>
    <message>
        <source>Load…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Load a script, with what is expected when that stands beside it</source>
        <translation>打开脚本；旁边有预期时一并读取</translation>
    </message>
    <message>
        <source>Copy as replay script</source>
        <translation>复制为回放脚本</translation>
    </message>
    <message>
        <source>Copy the commands for orderparam-replay</source>
        <translation>复制供 orderparam-replay 使用的命令</translation>
    </message>
    <message>
        <source>Copy as test</source>
        <translation>复制为测试</translation>
    </message>
    <message>
        <source>Copy what writes the script and its expectations into the current folder</source>
        <translation>复制一段命令，把脚本及其预期写入当前文件夹</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>录制</translation>
    </message>
    <message>
        <source>Recordin&amp;g</source>
        <translation>录制(&amp;G)</translation>
    </message>
    <message numerus="yes">
        <source>Recording: %n step(s).</source>
        <translation>
            <numerusform>正在录制：%n 步。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s).</source>
        <translation>
            <numerusform>%n 步。</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n step(s) answered otherwise.</source>
        <translation>
            <numerusform>%n 步应答不同。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 has it</source>
        <translation>%1 包含此单元格</translation>
    </message>
    <message>
        <source>%1 is off</source>
        <translation>%1 未开启</translation>
    </message>
    <message>
        <source>%1 is on</source>
        <translation>%1 已开启</translation>
    </message>
    <message>
        <source>%1 lacks it</source>
        <translation>%1 不包含此单元格</translation>
    </message>
    <message>
        <source>%1 on</source>
        <translation>开启 %1 个</translation>
    </message>
    <message>
        <source>Differences only</source>
        <translation>仅显示差异</translation>
    </message>
    <message>
        <source>Follow the panel&apos;s row</source>
        <translation>跟随面板当前行</translation>
    </message>
    <message>
        <source>Any cell, shown or not</source>
        <translation>任一单元格，无论是否显示</translation>
    </message>
    <message>
        <source>As the panel</source>
        <translation>取自面板</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>单元格目录</translation>
    </message>
    <message>
        <source>Cell</source>
        <translation>单元格</translation>
    </message>
    <message>
        <source>Cell area</source>
        <translation>单元格区域</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>比较</translation>
    </message>
    <message>
        <source>Effect</source>
        <translation>作用</translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>Expansion</source>
        <translation>展开状态</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Fact</source>
        <translation>项目</translation>
    </message>
    <message>
        <source>Feature module</source>
        <translation>功能模块</translation>
    </message>
    <message>
        <source>Feature modules</source>
        <translation>功能模块</translation>
    </message>
    <message>
        <source>Host&apos;s flags</source>
        <translation>宿主标志</translation>
    </message>
    <message>
        <source>Identity</source>
        <translation>表标识</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Mask of the order type</source>
        <translation>委托类型掩码</translation>
    </message>
    <message>
        <source>Rule</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Rule of its own</source>
        <translation>自有规则</translation>
    </message>
    <message>
        <source>Set since</source>
        <translation>之后的设置</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>表</translation>
    </message>
    <message>
        <source>Take what the order panel is made of</source>
        <translation>采用下单面板的构成</translation>
    </message>
    <message>
        <source>User&apos;s filter</source>
        <translation>用户筛选</translation>
    </message>
    <message>
        <source>Why a cell is shown or not</source>
        <translation>单元格显示或隐藏的原因</translation>
    </message>
    <message>
        <source>Write the rows that are shown, as CSV or between tabs</source>
        <translation>把显示的行写成 CSV 或制表符分隔的文件</translation>
    </message>
    <message>
        <source>always shown, whatever flags and mask say</source>
        <translation>始终显示，不看标志和掩码</translation>
    </message>
    <message>
        <source>check</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>collapsed</source>
        <translation>折叠</translation>
    </message>
    <message>
        <source>collapsed: the user&apos;s cells %1 lack it</source>
        <translation>折叠：用户的单元格 %1 不包含它</translation>
    </message>
    <message>
        <source>decides</source>
        <translation>起决定作用</translation>
    </message>
    <message>
        <source>differs</source>
        <translation>有差异</translation>
    </message>
    <message>
        <source>editable</source>
        <translation>可编辑</translation>
    </message>
    <message>
        <source>entries</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>expanded</source>
        <translation>展开</translation>
    </message>
    <message>
        <source>expanded: the algorithm shows all of its cells</source>
        <translation>展开：算法显示它的全部单元格</translation>
    </message>
    <message>
        <source>for broker types with a volume type</source>
        <translation>限有基准量的账号类型</translation>
    </message>
    <message>
        <source>for the remaining target volume alone</source>
        <translation>仅限目标剩余量</translation>
    </message>
    <message>
        <source>height of the cells</source>
        <translation>单元格总高</translation>
    </message>
    <message>
        <source>help hidden</source>
        <translation>帮助隐藏</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>hidden in order types 0 and 1</source>
        <translation>委托类型 0 和 1 时隐藏</translation>
    </message>
    <message>
        <source>hidden: a parameter set is in use</source>
        <translation>隐藏：正在使用参数组</translation>
    </message>
    <message>
        <source>hides</source>
        <translation>隐藏</translation>
    </message>
    <message>
        <source>in every table</source>
        <translation>每个表都有</translation>
    </message>
    <message>
        <source>in tables with a limit price; created hidden</source>
        <translation>限有限价的表；创建时隐藏</translation>
    </message>
    <message>
        <source>in the table</source>
        <translation>在表中</translation>
    </message>
    <message>
        <source>kind</source>
        <translation>种类</translation>
    </message>
    <message>
        <source>label</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>leaves this cell alone</source>
        <translation>不影响此单元格</translation>
    </message>
    <message>
        <source>limited cell</source>
        <translation>受限单元格</translation>
    </message>
    <message>
        <source>limiting cell</source>
        <translation>限制单元格</translation>
    </message>
    <message>
        <source>limits</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>mode buttons</source>
        <translation>模式按钮</translation>
    </message>
    <message>
        <source>mode strip hidden</source>
        <translation>模式条隐藏</translation>
    </message>
    <message>
        <source>no choice: every cell</source>
        <translation>未选择：全部单元格</translation>
    </message>
    <message>
        <source>none needed</source>
        <translation>不需要</translation>
    </message>
    <message>
        <source>not for Hong Kong accounts</source>
        <translation>港股账号除外</translation>
    </message>
    <message>
        <source>not in close settings and tables without remark</source>
        <translation>平仓设置和无备注的表除外</translation>
    </message>
    <message>
        <source>not in the catalogue; a host adds it</source>
        <translation>不在目录中，由宿主添加</translation>
    </message>
    <message>
        <source>not in this table</source>
        <translation>不在此表中</translation>
    </message>
    <message>
        <source>order type %1: %2</source>
        <translation>委托类型 %1：%2</translation>
    </message>
    <message>
        <source>shown</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>shown in order types 0 and 1</source>
        <translation>委托类型 0 和 1 时显示</translation>
    </message>
    <message>
        <source>shown while expanded, but not for plain orders</source>
        <translation>展开时显示，普通委托除外</translation>
    </message>
    <message>
        <source>shows</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>stop loss</source>
        <translation>止损</translation>
    </message>
    <message>
        <source>stop profit</source>
        <translation>止盈</translation>
    </message>
    <message>
        <source>the rules have not run yet</source>
        <translation>规则尚未运行</translation>
    </message>
    <message>
        <source>the user&apos;s choice has it</source>
        <translation>用户的选择包含它</translation>
    </message>
    <message>
        <source>the user&apos;s choice lacks it</source>
        <translation>用户的选择不包含它</translation>
    </message>
    <message>
        <source>trigger price</source>
        <translation>触发价</translation>
    </message>
    <message>
        <source>unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>units</source>
        <translation>各单位</translation>
    </message>
    <message>
        <source>value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>where the broker type has price types</source>
        <translation>限有报价方式的账号类型</translation>
    </message>
    <message>
        <source>where volumes may be random: module, stock, desk 1, some identities</source>
        <translation>限可随机数量：模块、股票、交易端 1、部分表标识</translation>
    </message>
    <message>
        <source>with its module alone</source>
        <translation>仅随其模块</translation>
    </message>
    <message>
        <source>with the module of remarks</source>
        <translation>随备注模块</translation>
    </message>
    <message>
        <source>keeps what an earlier order type or price type set</source>
        <translation>保留先前委托类型或报价方式的设置</translation>
    </message>
    <message>
        <source>shown when the user&apos;s filter was applied</source>
        <translation>应用用户筛选时显示</translation>
    </message>
    <message>
        <source>set when the volume type was chosen</source>
        <translation>选择基准量时设置</translation>
    </message>
    <message>
        <source>shown when the table was last expanded</source>
        <translation>上次展开时显示</translation>
    </message>
    <message>
        <source>hidden by the host, or under earlier values</source>
        <translation>被宿主隐藏，或按先前的值隐藏</translation>
    </message>
    <message>
        <source>shown by the host, or under earlier values</source>
        <translation>被宿主显示，或按先前的值显示</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>无</translation>
    </message>
    <message>
        <source>Why?</source>
        <translation>为什么？</translation>
    </message>
    <message numerus="yes">
        <source>%n difference(s)</source>
        <translation>
            <numerusform>%n 处差异</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2. %3: %4</source>
        <translation>%1：%2。%3：%4</translation>
    </message>
    <message>
        <source>Code or name</source>
        <translation>代码或名称</translation>
    </message>
    <message>
        <source>Instrument</source>
        <translation>证券</translation>
    </message>
    <message>
        <source>Instrument: a part of its code or name, Enter</source>
        <translation>证券：输入代码或名称的一部分后回车</translation>
    </message>
    <message>
        <source>Account; its broker type says what the panel is made of</source>
        <translation>账号；账号类型决定面板的组成</translation>
    </message>
    <message>
        <source>unknown instrument</source>
        <translation>未知证券</translation>
    </message>
    <message>
        <source>no instrument chosen</source>
        <translation>未选择证券</translation>
    </message>
    <message>
        <source>A command, a part, or a cell</source>
        <translation>命令、部件或单元格</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>查找</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>查找结果</translation>
    </message>
    <message>
        <source>list</source>
        <translation>列表</translation>
    </message>
    <message>
        <source>number</source>
        <translation>数值</translation>
    </message>
    <message>
        <source>number with a box</source>
        <translation>带勾选的数值</translation>
    </message>
    <message>
        <source>range</source>
        <translation>区间</translation>
    </message>
    <message>
        <source>period</source>
        <translation>时段</translation>
    </message>
    <message>
        <source>line</source>
        <translation>文本行</translation>
    </message>
    <message>
        <source>text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Copy the parameter string</source>
        <translation>复制参数串</translation>
    </message>
    <message>
        <source>Copy string</source>
        <translation>复制参数串</translation>
    </message>
    <message>
        <source>Copy the settings record</source>
        <translation>复制设置记录</translation>
    </message>
    <message>
        <source>Copy record</source>
        <translation>复制设置记录</translation>
    </message>
    <message>
        <source>Copy what changed last</source>
        <translation>复制最近的变化</translation>
    </message>
    <message>
        <source>Copy change</source>
        <translation>复制变化</translation>
    </message>
    <message>
        <source>Enter or double-click: to the cell</source>
        <translation>回车或双击：转到该单元格</translation>
    </message>
    <message>
        <source>Of the selected tasks, or of all; the library&apos;s basket dialog shows no cells</source>
        <translation>选中的任务，或全部任务；库的篮子窗口不显示单元格</translation>
    </message>
    <message>
        <source>Choose an instrument</source>
        <translation>选择证券</translation>
    </message>
    <message>
        <source>Why is this cell shown?</source>
        <translation>这个单元格为什么显示？</translation>
    </message>
    <message>
        <source>Compare with another broker</source>
        <translation>与其他账号类型对比</translation>
    </message>
    <message>
        <source>Parts back to their places</source>
        <translation>部件恢复原位</translation>
    </message>
    <message>
        <source>Order panel alone</source>
        <translation>只看下单面板</translation>
    </message>
    <message>
        <source>Next theme</source>
        <translation>下一个主题</translation>
    </message>
    <message>
        <source>Next language</source>
        <translation>下一种语言</translation>
    </message>
    <message>
        <source>Find a command or a cell…</source>
        <translation>查找命令或单元格…</translation>
    </message>
</context>
</TS>
