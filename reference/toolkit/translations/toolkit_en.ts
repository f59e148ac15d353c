<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="zh_CN">
<context>
    <name>WQ</name>
    <message>
        <source>不是时长（00:00:00 – 24:00:00）</source>
        <translation>is not a duration (00:00:00 – 24:00:00)</translation>
    </message>
    <message>
        <source>不是时间（00:00:00 – 23:59:59）</source>
        <translation>is not a time (00:00:00 – 23:59:59)</translation>
    </message>
    <message>
        <source>格式不符</source>
        <translation>has the wrong format</translation>
    </message>
    <message>
        <source>没有这个选项</source>
        <translation>has no such choice</translation>
    </message>
    <message>
        <source>文字过长（最多 %1 个字符）</source>
        <translation>is too long (at most %1 characters)</translation>
    </message>
    <message>
        <source>不能含有换行或制表符</source>
        <translation>must not contain line breaks or tabs</translation>
    </message>
    <message>
        <source>已没有最初的选项</source>
        <translation>no longer has its initial choice</translation>
    </message>
    <message>
        <source>请输入 %1 – %2</source>
        <translation>Enter %1 – %2</translation>
    </message>
    <message>
        <source>请输入不小于 %1 的数</source>
        <translation>Enter a number of at least %1</translation>
    </message>
    <message>
        <source>请输入不大于 %1 的数</source>
        <translation>Enter a number of at most %1</translation>
    </message>
    <message>
        <source>请输入数字</source>
        <translation>Enter a number</translation>
    </message>
    <message>
        <source>不小于 %1</source>
        <translation>at least %1</translation>
    </message>
    <message>
        <source>不大于 %1</source>
        <translation>at most %1</translation>
    </message>
    <message>
        <source>（%1）</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>不是 %1 的整数倍：%2 或 %3</source>
        <translation>not a multiple of %1: %2 or %3</translation>
    </message>
    <message>
        <source>%1 已调整为 %2</source>
        <translation>%1 adjusted to %2</translation>
    </message>
    <message>
        <source>不是数字</source>
        <translation>is not a number</translation>
    </message>
    <message>
        <source>须为整数</source>
        <translation>must be a whole number</translation>
    </message>
    <message>
        <source>超出范围</source>
        <translation>is out of range</translation>
    </message>
    <message>
        <source>下限 %1</source>
        <translation>low end %1</translation>
    </message>
    <message>
        <source>上限 %1</source>
        <translation>high end %1</translation>
    </message>
    <message>
        <source>；</source>
        <translation>; </translation>
    </message>
    <message>
        <source>上限不能小于下限</source>
        <translation>must not have its high end below its low end</translation>
    </message>
    <message>
        <source>筛选</source>
        <translation>Filter</translation>
    </message>
</context>
<context>
    <name>WQ::CellEditor</name>
    <message>
        <source>时段</source>
        <translation>Period</translation>
    </message>
    <message>
        <source>时长</source>
        <translation>Duration</translation>
    </message>
</context>
<context>
    <name>WQ::CDropDownButtonGroup</name>
    <message>
        <source>帮助</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>更多</source>
        <translation>More</translation>
    </message>
    <message>
        <source>有重要提示</source>
        <translation>Important notice</translation>
    </message>
</context>
<context>
    <name>WQ::CFloatWidget</name>
    <message>
        <source>关闭</source>
        <translation>Close</translation>
    </message>
</context>
<context>
    <name>WQ::CMultiParamsTable</name>
    <message>
        <source>复制数值</source>
        <translation>Copy value</translation>
    </message>
    <message>
        <source>复制名称和数值</source>
        <translation>Copy label and value</translation>
    </message>
    <message>
        <source>复制全部</source>
        <translation>Copy all</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>恢复初始值</source>
        <translation>Restore initial value</translation>
    </message>
    <message>
        <source>切换单位</source>
        <translation>Switch unit</translation>
    </message>
    <message>
        <source>筛选</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>部分参数未显示</source>
        <translation>Some parameters are not shown</translation>
    </message>
</context>
<context>
    <name>WQ::CParameterCell</name>
    <message>
        <source>复制</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>全部复制</source>
        <translation>Copy all</translation>
    </message>
</context>
<context>
    <name>WQ::FilterPopup</name>
    <message>
        <source>重置</source>
        <translation>Reset</translation>
    </message>
    <message>
        <source>应用</source>
        <translation>Apply</translation>
    </message>
</context>
</TS>
