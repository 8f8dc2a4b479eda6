<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="zh_CN">
<context>
    <name>PartNames</name>
    <message>
        <source>绘图区</source>
        <translation>plot</translation>
    </message>
    <message>
        <source>数值轴</source>
        <translation>value axis</translation>
    </message>
    <message>
        <source>横轴</source>
        <translation>horizontal axis</translation>
    </message>
    <message>
        <source>扇区</source>
        <translation>slice</translation>
    </message>
    <message>
        <source>柱</source>
        <translation>bar</translation>
    </message>
    <message>
        <source>曲线</source>
        <translation>curve</translation>
    </message>
    <message>
        <source>数据点</source>
        <translation>data point</translation>
    </message>
    <message>
        <source>扇区标签</source>
        <translation>slice label</translation>
    </message>
    <message>
        <source>柱标签</source>
        <translation>bar label</translation>
    </message>
    <message>
        <source>数值轴标签</source>
        <translation>value axis label</translation>
    </message>
    <message>
        <source>横轴标签</source>
        <translation>horizontal axis label</translation>
    </message>
    <message>
        <source>组名</source>
        <translation>group name</translation>
    </message>
    <message>
        <source>数值轴标题</source>
        <translation>value axis title</translation>
    </message>
    <message>
        <source>横轴标题</source>
        <translation>horizontal axis title</translation>
    </message>
    <message>
        <source>标题</source>
        <translation>title</translation>
    </message>
    <message>
        <source>图例</source>
        <translation>legend</translation>
    </message>
    <message>
        <source>图例色块</source>
        <translation>legend sample</translation>
    </message>
    <message>
        <source>饼图</source>
        <translation>pie chart</translation>
    </message>
    <message>
        <source>半饼图</source>
        <translation>half pie</translation>
    </message>
    <message>
        <source>双半饼图</source>
        <translation>two half pies</translation>
    </message>
    <message>
        <source>半饼直方图</source>
        <translation>half pie with bars</translation>
    </message>
    <message>
        <source>直方图</source>
        <translation>bar chart</translation>
    </message>
    <message>
        <source>曲线图</source>
        <translation>line chart</translation>
    </message>
    <message>
        <source>图例名称</source>
        <translation>legend name</translation>
    </message>
</context>
<context>
    <name>TableChoice</name>
    <message>
        <source>打开数据库</source>
        <translation>Open a database</translation>
    </message>
    <message>
        <source>“%1”里没有可用的表。</source>
        <translation>“%1” has no table that can be used.</translation>
    </message>
    <message>
        <source>选一张表，或输入一条 SELECT 查询：</source>
        <translation>Choose a table, or type a SELECT query:</translation>
    </message>
</context>
<context>
    <name>designer::CellDelegate</name>
    <message>
        <source>第 %1 行，%2</source>
        <translation>Row %1, %2</translation>
    </message>
</context>
<context>
    <name>designer::ChartCanvas</name>
    <message>
        <source>编辑文字</source>
        <translation>Edit text</translation>
    </message>
    <message>
        <source>图表</source>
        <translation>Chart</translation>
    </message>
    <message>
        <source>数据</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>文字</source>
        <translation>Texts</translation>
    </message>
    <message>
        <source>坐标轴</source>
        <translation>Axes</translation>
    </message>
    <message>
        <source>第 %1 组</source>
        <translation>Group %1</translation>
    </message>
</context>
<context>
    <name>designer::ChartCommands</name>
    <message>
        <source>移动%1</source>
        <translation>move %1</translation>
    </message>
    <message>
        <source>%1复位</source>
        <translation>put back %1</translation>
    </message>
    <message>
        <source>修改%1</source>
        <translation>change %1</translation>
    </message>
    <message>
        <source>修改属性</source>
        <translation>change properties</translation>
    </message>
    <message>
        <source>修改颜色</source>
        <translation>change colour</translation>
    </message>
    <message>
        <source>修改大小</source>
        <translation>change size</translation>
    </message>
    <message>
        <source>这个大小容不下图表的文字。</source>
        <translation>The chart’s texts do not fit into this size.</translation>
    </message>
    <message>
        <source>编辑文字(&amp;T)</source>
        <translation>Edit &amp;text</translation>
    </message>
    <message>
        <source>颜色(&amp;C)…</source>
        <translation>&amp;Colour…</translation>
    </message>
    <message>
        <source>复位(&amp;R)</source>
        <translation>Put &amp;back</translation>
    </message>
    <message>
        <source>%1属性(&amp;P)…</source>
        <translation>&amp;Properties of the %1…</translation>
    </message>
    <message>
        <source>属性(&amp;P)…</source>
        <translation>&amp;Properties…</translation>
    </message>
</context>
<context>
    <name>designer::DataView</name>
    <message>
        <source>数据表</source>
        <translation>Data table</translation>
    </message>
    <message>
        <source>图表的数据：第一列是名称或时间，其余各列是数</source>
        <translation>The chart’s data: names or times in the first column, numbers in the others</translation>
    </message>
    <message>
        <source>粘贴</source>
        <translation>paste</translation>
    </message>
    <message>
        <source>剪切(&amp;T)</source>
        <translation>Cu&amp;t</translation>
    </message>
    <message>
        <source>复制(&amp;C)</source>
        <translation>&amp;Copy</translation>
    </message>
    <message>
        <source>粘贴(&amp;P)</source>
        <translation>&amp;Paste</translation>
    </message>
    <message>
        <source>清除(&amp;E)</source>
        <translation>Cl&amp;ear</translation>
    </message>
    <message>
        <source>在上方插入行(&amp;A)</source>
        <translation>Insert rows &amp;above</translation>
    </message>
    <message>
        <source>在下方插入行(&amp;B)</source>
        <translation>Insert rows &amp;below</translation>
    </message>
    <message>
        <source>删除行(&amp;D)</source>
        <translation>&amp;Delete rows</translation>
    </message>
    <message>
        <source>上移(&amp;U)</source>
        <translation>Move &amp;up</translation>
    </message>
    <message>
        <source>下移(&amp;W)</source>
        <translation>Move do&amp;wn</translation>
    </message>
    <message>
        <source>修改标题(&amp;H)</source>
        <translation>Edit &amp;heading</translation>
    </message>
    <message>
        <source>升序排列(&amp;S)</source>
        <translation>&amp;Sort ascending</translation>
    </message>
    <message>
        <source>降序排列(&amp;O)</source>
        <translation>S&amp;ort descending</translation>
    </message>
    <message>
        <source>在左侧插入列(&amp;L)</source>
        <translation>Insert columns on the &amp;left</translation>
    </message>
    <message>
        <source>在右侧插入列(&amp;R)</source>
        <translation>Insert columns on the &amp;right</translation>
    </message>
    <message>
        <source>删除列(&amp;N)</source>
        <translation>&amp;Delete columns</translation>
    </message>
    <message>
        <source>左移(&amp;F)</source>
        <translation>Move le&amp;ft</translation>
    </message>
    <message>
        <source>右移(&amp;G)</source>
        <translation>Move ri&amp;ght</translation>
    </message>
    <message>
        <source>向下填充(&amp;I)</source>
        <translation>F&amp;ill down</translation>
    </message>
    <message>
        <source>行(&amp;R)</source>
        <translation>&amp;Rows</translation>
    </message>
    <message>
        <source>列(&amp;L)</source>
        <translation>Co&amp;lumns</translation>
    </message>
</context>
<context>
    <name>designer::DocumentTexts</name>
    <message>
        <source>文档</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>标题(&amp;I)</source>
        <translation>T&amp;itle</translation>
    </message>
    <message>
        <source>修改文档标题</source>
        <translation>change document title</translation>
    </message>
    <message>
        <source>说明(&amp;D)</source>
        <translation>&amp;Description</translation>
    </message>
    <message>
        <source>修改文档说明</source>
        <translation>change description</translation>
    </message>
    <message>
        <source>来源(&amp;O)</source>
        <translation>S&amp;ource</translation>
    </message>
    <message>
        <source>修改数据来源</source>
        <translation>change source</translation>
    </message>
    <message>
        <source>随文件保存，不画在图上</source>
        <translation>Saved with the file, not drawn</translation>
    </message>
    <message>
        <source>图表说明了什么，读屏软件也会读出</source>
        <translation>What the chart shows; screen readers read it out</translation>
    </message>
    <message>
        <source>数据从哪里来</source>
        <translation>Where the data come from</translation>
    </message>
</context>
<context>
    <name>designer::ExportDialog</name>
    <message>
        <source>透明背景(&amp;T)</source>
        <translation>&amp;Transparent background</translation>
    </message>
    <message>
        <source>导出图片</source>
        <translation>Export picture</translation>
    </message>
    <message>
        <source>PNG 图片</source>
        <translation>PNG picture</translation>
    </message>
    <message>
        <source>SVG 矢量图</source>
        <translation>SVG drawing</translation>
    </message>
    <message>
        <source>PDF 文档</source>
        <translation>PDF document</translation>
    </message>
    <message>
        <source>导出(&amp;E)…</source>
        <translation>&amp;Export…</translation>
    </message>
    <message>
        <source>格式(&amp;F)：</source>
        <translation>&amp;Format:</translation>
    </message>
    <message>
        <source>每英寸点数(&amp;D)：</source>
        <translation>&amp;Dots per inch:</translation>
    </message>
    <message>
        <source>大小：</source>
        <translation>Size:</translation>
    </message>
    <message>
        <source>%1 × %2 毫米</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>，%1 × %2 像素</source>
        <translation>, %1 × %2 pixels</translation>
    </message>
</context>
<context>
    <name>designer::FileCommands</name>
    <message>
        <source>第 %1 行：</source>
        <translation>Line %1: </translation>
    </message>
    <message numerus="yes">
        <source>还有 %n 个</source>
        <translation>
            <numerusform>%n more</numerusform>
            <numerusform>%n more</numerusform>
        </translation>
    </message>
    <message>
        <source>打不开“%1”。</source>
        <translation>“%1” cannot be opened.</translation>
    </message>
    <message>
        <source>“%1”不能画成图表。</source>
        <translation>“%1” cannot be made into a chart.</translation>
    </message>
    <message>
        <source>打开</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>图表和数据表 (*.json *.csv *.tsv *.txt *.xlsx *.ods *.db *.sqlite *.sqlite3)</source>
        <translation>Charts and tables (*.json *.csv *.tsv *.txt *.xlsx *.ods *.db *.sqlite *.sqlite3)</translation>
    </message>
    <message>
        <source>图表 (*.json)</source>
        <translation>Charts (*.json)</translation>
    </message>
    <message>
        <source>所有文件 (*)</source>
        <translation>All files (*)</translation>
    </message>
    <message>
        <source>另存为</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>图表 (*.chart.json)</source>
        <translation>Charts (*.chart.json)</translation>
    </message>
    <message>
        <source>“%1”没有保存。</source>
        <translation>“%1” was not saved.</translation>
    </message>
    <message>
        <source>原来的文件没有动，图表仍在窗口里；可以换个地方再存。</source>
        <translation>The file is as it was before, and the chart is still in the window; you can save it elsewhere.</translation>
    </message>
    <message numerus="yes">
        <source>有 %n 个格子不是数。</source>
        <translation>
            <numerusform>%n cell is not a number.</numerusform>
            <numerusform>%n cells are not numbers.</numerusform>
        </translation>
    </message>
    <message>
        <source>图表把它们当作空格；文件里只存数，这些文字不会存下来。</source>
        <translation>The chart takes such cells as empty. The file holds numbers alone: these texts will not be saved.</translation>
    </message>
    <message>
        <source>仍然保存(&amp;S)</source>
        <translation>&amp;Save anyway</translation>
    </message>
    <message>
        <source>取消</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>“%1”已被其他程序修改。</source>
        <translation>Another program changed “%1”.</translation>
    </message>
    <message>
        <source>保存会用窗口里的图表替换那个文件。</source>
        <translation>Saving replaces that file with the chart in the window.</translation>
    </message>
    <message>
        <source>替换(&amp;R)</source>
        <translation>&amp;Replace</translation>
    </message>
    <message>
        <source>保存对“%1”的更改吗？</source>
        <translation>Save the changes to “%1”?</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>不保存(&amp;N)</source>
        <translation>Do &amp;not save</translation>
    </message>
    <message>
        <source>导出图片</source>
        <translation>Export picture</translation>
    </message>
    <message>
        <source>图片太大，请减少点数。</source>
        <translation>The picture is too large; try fewer dots per inch.</translation>
    </message>
    <message>
        <source>“%1”没有写成。</source>
        <translation>“%1” was not written.</translation>
    </message>
    <message>
        <source>未命名</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>上次没有正常结束，“%1”还有没保存的更改。</source>
        <translation>The program ended suddenly last time. “%1” has changes that were not saved.</translation>
    </message>
    <message>
        <source>最后记下的时间是 %1。</source>
        <translation>They were last kept at %1.</translation>
    </message>
    <message>
        <source>恢复(&amp;R)</source>
        <translation>&amp;Recover</translation>
    </message>
    <message>
        <source>丢弃(&amp;D)</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>以后再说</source>
        <translation>Later</translation>
    </message>
    <message>
        <source>图表</source>
        <translation>chart</translation>
    </message>
</context>
<context>
    <name>designer::MainWindow</name>
    <message>
        <source>第一个半饼</source>
        <translation>First half pie</translation>
    </message>
    <message>
        <source>第二个半饼</source>
        <translation>Second half pie</translation>
    </message>
    <message>
        <source>半饼</source>
        <translation>Half pie</translation>
    </message>
    <message>
        <source>柱</source>
        <translation>Bars</translation>
    </message>
    <message>
        <source>数据</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>工具栏</source>
        <translation>Toolbar</translation>
    </message>
    <message>
        <source>选项</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>缩放</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>%1%</source>
        <translation>%1%</translation>
    </message>
    <message>
        <source>%1 × %2 毫米</source>
        <translation>%1 × %2 mm</translation>
    </message>
    <message>
        <source>改为%1</source>
        <translation>change to %1</translation>
    </message>
    <message>
        <source>“%1”已被其他程序修改。</source>
        <translation>Another program changed “%1”.</translation>
    </message>
    <message>
        <source>重新读入</source>
        <translation>Reload</translation>
    </message>
    <message>
        <source>保留窗口里的</source>
        <translation>Keep what the window has</translation>
    </message>
    <message>
        <source>文件(&amp;F)</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>新建(&amp;N)</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>打开(&amp;O)…</source>
        <translation>&amp;Open…</translation>
    </message>
    <message>
        <source>最近打开(&amp;R)</source>
        <translation>Open &amp;recent</translation>
    </message>
    <message>
        <source>保存(&amp;S)</source>
        <translation>&amp;Save</translation>
    </message>
    <message>
        <source>另存为(&amp;A)…</source>
        <translation>Save &amp;as…</translation>
    </message>
    <message>
        <source>导出图片(&amp;E)…</source>
        <translation>&amp;Export picture…</translation>
    </message>
    <message>
        <source>打印预览(&amp;V)…</source>
        <translation>Print pre&amp;view…</translation>
    </message>
    <message>
        <source>打印(&amp;P)…</source>
        <translation>&amp;Print…</translation>
    </message>
    <message>
        <source>退出(&amp;Q)</source>
        <translation>&amp;Quit</translation>
    </message>
    <message>
        <source>编辑(&amp;E)</source>
        <translation>&amp;Edit</translation>
    </message>
    <message>
        <source>撤销(&amp;U)</source>
        <translation>&amp;Undo</translation>
    </message>
    <message>
        <source>重做(&amp;R)</source>
        <translation>&amp;Redo</translation>
    </message>
    <message>
        <source>复制图表(&amp;C)</source>
        <translation>&amp;Copy chart</translation>
    </message>
    <message>
        <source>图表(&amp;C)</source>
        <translation>&amp;Chart</translation>
    </message>
    <message>
        <source>类型(&amp;K)</source>
        <translation>&amp;Kind</translation>
    </message>
    <message>
        <source>属性(&amp;P)…</source>
        <translation>&amp;Properties…</translation>
    </message>
    <message>
        <source>大小(&amp;S)…</source>
        <translation>&amp;Size…</translation>
    </message>
    <message>
        <source>编辑文字(&amp;T)</source>
        <translation>Edit &amp;text</translation>
    </message>
    <message>
        <source>颜色(&amp;C)…</source>
        <translation>&amp;Colour…</translation>
    </message>
    <message>
        <source>位置复位(&amp;R)</source>
        <translation>&amp;Reset position</translation>
    </message>
    <message>
        <source>视图(&amp;V)</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>放大(&amp;I)</source>
        <translation>Zoom &amp;in</translation>
    </message>
    <message>
        <source>缩小(&amp;O)</source>
        <translation>Zoom &amp;out</translation>
    </message>
    <message>
        <source>实际大小(&amp;A)</source>
        <translation>&amp;Actual size</translation>
    </message>
    <message>
        <source>适合窗口(&amp;F)</source>
        <translation>&amp;Fit to window</translation>
    </message>
    <message>
        <source>语言(&amp;L)</source>
        <translation>&amp;Language</translation>
    </message>
    <message>
        <source>下次启动时使用所选的语言。</source>
        <translation>The language changes when you start the program again.</translation>
    </message>
    <message>
        <source>帮助(&amp;H)</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>键盘操作(&amp;K)</source>
        <translation>&amp;Keyboard</translation>
    </message>
    <message>
        <source>关于(&amp;A)</source>
        <translation>&amp;About</translation>
    </message>
    <message>
        <source>（还没有）</source>
        <translation>(none yet)</translation>
    </message>
    <message>
        <source>撤销 %1(&amp;U)</source>
        <translation>&amp;Undo %1</translation>
    </message>
    <message>
        <source>重做 %1(&amp;R)</source>
        <translation>&amp;Redo %1</translation>
    </message>
    <message>
        <source>键盘操作</source>
        <translation>Keyboard</translation>
    </message>
    <message>
        <source>关于 Millichart</source>
        <translation>About Millichart</translation>
    </message>
    <message>
        <source>&lt;h3&gt;Millichart %1&lt;/h3&gt;&lt;p&gt;以毫米排版的图表。&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Millichart %1&lt;/h3&gt;&lt;p&gt;Charts laid out in millimetres.&lt;/p&gt;</translation>
    </message>
    <message>
        <source>%1 个数，和 %2，平均 %3</source>
        <translation>%1 numbers, sum %2, mean %3</translation>
    </message>
    <message>
        <source>切换到下一窗格(&amp;N)</source>
        <translation>&amp;Next pane</translation>
    </message>
    <message>
        <source>&lt;table cellpadding=3&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;图上的下一个部分&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;方向键&lt;/b&gt;&lt;/td&gt;&lt;td&gt;移动选中的标签或图例 0.1 毫米；加 Shift 移动 1 毫米&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Delete&lt;/b&gt;&lt;/td&gt;&lt;td&gt;放回原处&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;就地编辑文字&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;空格&lt;/b&gt;&lt;/td&gt;&lt;td&gt;选颜色&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Enter&lt;/b&gt;&lt;/td&gt;&lt;td&gt;打开属性&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Ctrl+滚轮&lt;/b&gt;&lt;/td&gt;&lt;td&gt;缩放；Ctrl+0 适合窗口，Ctrl+1 实际大小&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F9、F10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;数据表、选项&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;在图、数据表和选项之间切换&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</source>
        <translation>&lt;table cellpadding=3&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Tab&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Next part of the chart&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Arrow keys&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Move the selected label or legend by 0.1 mm; with Shift by 1 mm&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Delete&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Put it back&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F2&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Edit the text in place&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Space&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Choose a colour&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Enter&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Open the properties&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;Ctrl+wheel&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Zoom; Ctrl+0 fits the window, Ctrl+1 is actual size&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F9, F10&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Data table, options&lt;/td&gt;&lt;/tr&gt;&lt;tr&gt;&lt;td&gt;&lt;b&gt;F6&lt;/b&gt;&lt;/td&gt;&lt;td&gt;Between the chart, its data and the options&lt;/td&gt;&lt;/tr&gt;&lt;/table&gt;</translation>
    </message>
</context>
<context>
    <name>designer::OptionsPanel</name>
    <message>
        <source>不分隔（12500）</source>
        <translation>None (12500)</translation>
    </message>
    <message>
        <source>逗号（12,500）</source>
        <translation>Comma (12,500)</translation>
    </message>
    <message>
        <source>细空格（12 500）</source>
        <translation>Thin space (12 500)</translation>
    </message>
    <message>
        <source>万、亿（1.25万）</source>
        <translation>Chinese (1.25 wan)</translation>
    </message>
    <message>
        <source>普通的数</source>
        <translation>Plain numbers</translation>
    </message>
    <message>
        <source>日期</source>
        <translation>Dates</translation>
    </message>
    <message>
        <source>日期和时刻</source>
        <translation>Dates and times</translation>
    </message>
    <message>
        <source>逐项设定</source>
        <translation>Each item’s own</translation>
    </message>
    <message>
        <source>人人可辨</source>
        <translation>Safe for all eyes</translation>
    </message>
    <message>
        <source>黑白打印</source>
        <translation>Black and white</translation>
    </message>
    <message>
        <source>配色(&amp;P)</source>
        <translation>&amp;Palette</translation>
    </message>
    <message>
        <source>扇区、柱和线的颜色</source>
        <translation>The colours of slices, bars and lines</translation>
    </message>
    <message>
        <source>明暗对比(&amp;K)</source>
        <translation>&amp;Keep contrast</translation>
    </message>
    <message>
        <source>深色上的数用白色，侧面与正面同色相，网格浅而在后</source>
        <translation>White numbers on dark colours, sides in the hue of the front, a pale grid behind the data</translation>
    </message>
    <message>
        <source>留白(&amp;W)</source>
        <translation>&amp;White space</translation>
    </message>
    <message>
        <source>图表各部分之间留出三分之一行</source>
        <translation>A third of a line between the chart’s parts</translation>
    </message>
    <message>
        <source>图例靠近图形(&amp;G)</source>
        <translation>Le&amp;gend near the plot</translation>
    </message>
    <message>
        <source>图例与图形对齐，放不下时排成几行或几列</source>
        <translation>The legend is aligned with the plot, in several rows or columns where it needs them</translation>
    </message>
    <message>
        <source>扇区标签错开(&amp;S)</source>
        <translation>&amp;Slice labels apart</translation>
    </message>
    <message>
        <source>标签互不相碰，移开的用引线连到扇区</source>
        <translation>No label touches another; a line leads from one that was moved to its slice</translation>
    </message>
    <message>
        <source>名称不重叠(&amp;L)</source>
        <translation>&amp;Names do not overlap</translation>
    </message>
    <message>
        <source>名称放不下时换行、倾斜或隔几个显示一个</source>
        <translation>Names that do not fit are wrapped, turned or left out at regular steps</translation>
    </message>
    <message>
        <source>柱从零线起(&amp;Z)</source>
        <translation>Bars start at &amp;zero</translation>
    </message>
    <message>
        <source>负值的柱向下</source>
        <translation>Bars of negative values go down</translation>
    </message>
    <message>
        <source>数轴两端取整(&amp;R)</source>
        <translation>&amp;Round axis ends</translation>
    </message>
    <message>
        <source>数轴从最小值到最大值，刻度是整齐的数</source>
        <translation>The axis goes from the smallest to the largest value, with round numbers at its ticks</translation>
    </message>
    <message>
        <source>时间轴(&amp;M)</source>
        <translation>Ti&amp;me axis</translation>
    </message>
    <message>
        <source>数据第一列的时间是什么</source>
        <translation>What the times in the first column of the data are</translation>
    </message>
    <message>
        <source>标签对准时间(&amp;A)</source>
        <translation>L&amp;abels at their times</translation>
    </message>
    <message>
        <source>横轴的标签各在其时间处，而不是均匀排开</source>
        <translation>Each label of the horizontal axis stands at its time, instead of at equal distances</translation>
    </message>
    <message>
        <source>数字按原样(&amp;N)</source>
        <translation>Exact n&amp;umbers</translation>
    </message>
    <message>
        <source>数字需要几位小数就写几位</source>
        <translation>Numbers are written with as many decimals as they need</translation>
    </message>
    <message>
        <source>千位分隔(&amp;T)</source>
        <translation>&amp;Thousands</translation>
    </message>
    <message>
        <source>较大的数怎样写；数字按原样时有效</source>
        <translation>How large numbers are written; works with exact numbers</translation>
    </message>
    <message>
        <source>设置“%1”</source>
        <translation>set “%1”</translation>
    </message>
    <message>
        <source>文档和易读选项</source>
        <translation>Document and readability options</translation>
    </message>
    <message>
        <source>易读</source>
        <translation>Readability</translation>
    </message>
    <message>
        <source>图标题(&amp;U)</source>
        <translation>Chart tit&amp;le</translation>
    </message>
    <message>
        <source>第二个图标题(&amp;2)</source>
        <translation>&amp;2nd chart title</translation>
    </message>
    <message>
        <source>易读的图表(&amp;Y)</source>
        <translation>Eas&amp;y to read</translation>
    </message>
    <message>
        <source>让图表好读的一切，一次打开或关闭；下面可以逐项设定</source>
        <translation>Turns on or off all that makes a chart read well; each can be set below</translation>
    </message>
    <message>
        <source>打开“易读”</source>
        <translation>turn on readability</translation>
    </message>
    <message>
        <source>关闭“易读”</source>
        <translation>turn off readability</translation>
    </message>
    <message>
        <source>最多小数位数(&amp;X)</source>
        <translation>Ma&amp;x. decimals</translation>
    </message>
    <message>
        <source>柱和扇区处的数最多写几位小数；数字按原样时有效</source>
        <translation>The most decimals of numbers at bars and slices; works with exact numbers</translation>
    </message>
    <message>
        <source>画在图上；留空则没有</source>
        <translation>Drawn on the chart; leave it empty for none</translation>
    </message>
</context>
<context>
    <name>designer::SizeDialog</name>
    <message>
        <source> 毫米</source>
        <translation> mm</translation>
    </message>
    <message>
        <source>图表大小</source>
        <translation>Chart size</translation>
    </message>
    <message>
        <source>宽(&amp;W)：</source>
        <translation>&amp;Width:</translation>
    </message>
    <message>
        <source>高(&amp;H)：</source>
        <translation>&amp;Height:</translation>
    </message>
</context>
<context>
    <name>designer::StartPage</name>
    <message>
        <source>最近打开</source>
        <translation>Open recent</translation>
    </message>
    <message>
        <source>图表类型</source>
        <translation>Kinds of charts</translation>
    </message>
    <message>
        <source>打开图表或数据表(&amp;O)…</source>
        <translation>&amp;Open a chart or a table…</translation>
    </message>
    <message>
        <source>新建图表</source>
        <translation>New chart</translation>
    </message>
</context>
<context>
    <name>designer::TableChange</name>
    <message>
        <source>输入数据</source>
        <translation>typing</translation>
    </message>
    <message>
        <source>输入标题</source>
        <translation>typing a heading</translation>
    </message>
    <message>
        <source>清除</source>
        <translation>clear</translation>
    </message>
    <message>
        <source>剪切</source>
        <translation>cut</translation>
    </message>
    <message>
        <source>向下填充</source>
        <translation>fill down</translation>
    </message>
    <message>
        <source>插入行</source>
        <translation>insert rows</translation>
    </message>
    <message>
        <source>插入列</source>
        <translation>insert columns</translation>
    </message>
    <message>
        <source>删除行</source>
        <translation>delete rows</translation>
    </message>
    <message>
        <source>删除列</source>
        <translation>delete columns</translation>
    </message>
    <message>
        <source>移动行</source>
        <translation>move rows</translation>
    </message>
    <message>
        <source>移动列</source>
        <translation>move columns</translation>
    </message>
    <message>
        <source>升序排列</source>
        <translation>sort ascending</translation>
    </message>
    <message>
        <source>降序排列</source>
        <translation>sort descending</translation>
    </message>
</context>
<context>
    <name>designer::TableHeader</name>
    <message>
        <source>列标题</source>
        <translation>Column headings</translation>
    </message>
    <message>
        <source>行号</source>
        <translation>Row numbers</translation>
    </message>
    <message>
        <source>第 %1 列的标题</source>
        <translation>Heading of column %1</translation>
    </message>
</context>
<context>
    <name>designer::TableModel</name>
    <message>
        <source>这种图表不显示此列，数据会保留</source>
        <translation>This kind of chart does not show the column; its data are kept</translation>
    </message>
    <message>
        <source>不是时间</source>
        <translation>Not a time</translation>
    </message>
    <message>
        <source>不是数</source>
        <translation>Not a number</translation>
    </message>
    <message>
        <source>＋</source>
        <translation>+</translation>
    </message>
    <message>
        <source>无标题</source>
        <translation>No heading</translation>
    </message>
    <message>
        <source>新的一列</source>
        <translation>New column</translation>
    </message>
    <message>
        <source>第 %1 列</source>
        <translation>Column %1</translation>
    </message>
    <message>
        <source>双击可修改标题</source>
        <translation>Double-click to edit the heading</translation>
    </message>
    <message>
        <source>新的一行</source>
        <translation>New row</translation>
    </message>
</context>
</TS>
