<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh-CN" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message numerus="yes">
        <source>%n request(s)</source>
        <translation>
            <numerusform>%n 次请求</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n call(s)</source>
        <translation>
            <numerusform>%n 次调用</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>The wait is over. %n click(s) held back and delivered afterwards.</source>
        <translation>
            <numerusform>等待结束。%n 次点击被保留并在之后送达。</numerusform>
        </translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>延迟调用</translation>
    </message>
    <message>
        <source>Requests</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>移动滑块：多次请求合并为一次调用。</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>周期调用</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>未运行。</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>等待</translation>
    </message>
    <message>
        <source>No clicks yet.</source>
        <translation>还没有点击。</translation>
    </message>
    <message>
        <source>Wait, input excluded</source>
        <translation>等待（屏蔽输入）</translation>
    </message>
    <message>
        <source>Wait for a worker</source>
        <translation>等待工作线程</translation>
    </message>
    <message>
        <source>Click me meanwhile</source>
        <translation>期间点击我</translation>
    </message>
    <message numerus="yes">
        <source>%n click(s)</source>
        <translation>
            <numerusform>%n 次点击</numerusform>
        </translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>等待期间的点击会被保留，等待结束后再送达。</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>每 %1 毫秒。</translation>
    </message>
    <message numerus="yes">
        <source>Stopped after %n call(s).</source>
        <translation>
            <numerusform>%n 次调用后停止。</numerusform>
        </translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>等待 %1 毫秒。点击会被保留。</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>正在等待后台线程。点击会立即送达。</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>工作线程已完成。</translation>
    </message>
</context>
<context>
    <name>FatalPage</name>
    <message>
        <source>Little free space</source>
        <translation>可用空间不足</translation>
    </message>
    <message>
        <source>The drive of the temporary folder is almost full.</source>
        <translation>临时文件夹所在的驱动器几乎已满。</translation>
    </message>
    <message>
        <source>Out of memory</source>
        <translation>内存不足</translation>
    </message>
    <message>
        <source>A program of its own, which will be closed.</source>
        <translation>独立程序，将被关闭。</translation>
    </message>
    <message>
        <source>Out of memory in the photo editor</source>
        <translation>照片编辑器内存不足</translation>
    </message>
    <message>
        <source>The editor may become unstable.</source>
        <translation>编辑器可能变得不稳定。</translation>
    </message>
    <message>
        <source>Unhandled exception</source>
        <translation>未处理的异常</translation>
    </message>
    <message>
        <source>The program will be closed.</source>
        <translation>程序将被关闭。</translation>
    </message>
    <message>
        <source>The texts are prepared in the current language while all is well. On Windows the system&apos;s own message box shows them, on Linux a message program (kdialog, zenity or xmessage) or the standard error output.</source>
        <translation>文本在一切正常时以当前语言准备好。在 Windows 上由系统的消息框显示，在 Linux 上由消息程序（kdialog、zenity 或 xmessage）或标准错误输出显示。</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Shown and closed: %1</source>
        <translation>已显示并关闭：%1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>may be used</source>
        <translation>可以使用</translation>
    </message>
    <message>
        <source>refused</source>
        <translation>不允许</translation>
    </message>
    <message>
        <source>As a name</source>
        <translation>作为名称</translation>
    </message>
    <message>
        <source>As a path</source>
        <translation>作为路径</translation>
    </message>
    <message>
        <source>First path</source>
        <translation>第一个路径</translation>
    </message>
    <message>
        <source>Second path</source>
        <translation>第二个路径</translation>
    </message>
    <message>
        <source>equal</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Compared as a whole</source>
        <translation>整体比较</translation>
    </message>
    <message>
        <source>Compared without the suffix</source>
        <translation>不含扩展名比较</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>大小的文字表示</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>将文件夹压缩</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>文件夹</translation>
    </message>
    <message>
        <source>Choose…</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Packing</source>
        <translation>正在压缩</translation>
    </message>
    <message>
        <source>Unpack</source>
        <translation>解压</translation>
    </message>
    <message>
        <source>Unpacking</source>
        <translation>正在解压</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Asked the file browser to show %1.</source>
        <translation>已请求文件浏览器显示 %1。</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Cancelled: no archive is left.</source>
        <translation>已取消：没有留下压缩文件。</translation>
    </message>
</context>
<context>
    <name>LanguagesPage</name>
    <message>
        <source>Use this language</source>
        <translation>使用此语言</translation>
    </message>
    <message>
        <source>What follows the language</source>
        <translation>随语言变化的内容</translation>
    </message>
    <message>
        <source>A date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>A number</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>A button of Qt</source>
        <translation>Qt 的按钮</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>编号</translation>
    </message>
    <message>
        <source>Catalogue</source>
        <translation>翻译文件</translation>
    </message>
    <message>
        <source>Abbreviation</source>
        <translation>缩写</translation>
    </message>
    <message>
        <source>Now in use: %1</source>
        <translation>现在使用：%1</translation>
    </message>
    <message>
        <source>Already in use: %1</source>
        <translation>已在使用：%1</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>时间</translation>
    </message>
    <message>
        <source>Level</source>
        <translation>级别</translation>
    </message>
    <message>
        <source>Function</source>
        <translation>函数</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>日志文件夹</translation>
    </message>
    <message>
        <source>Minimum level written</source>
        <translation>写入的最低级别</translation>
    </message>
    <message>
        <source>A line from the showcase</source>
        <translation>来自功能展示的一行</translation>
    </message>
    <message>
        <source>Debug</source>
        <translation>调试</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>Show from</source>
        <translation>显示自</translation>
    </message>
    <message>
        <source>The log of this process</source>
        <translation>此进程的日志</translation>
    </message>
    <message>
        <source>Logged at the level %1.</source>
        <translation>已按级别“%1”记录。</translation>
    </message>
</context>
<context>
    <name>MessageBoxPage</name>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高度</translation>
    </message>
    <message>
        <source>Without a text each box brings one of its own.</source>
        <translation>不填文本时，每个消息框显示自带的示例。</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>About dialogs</source>
        <translation>关于对话框</translation>
    </message>
    <message>
        <source>About the product</source>
        <translation>关于产品</translation>
    </message>
    <message>
        <source>About the product family</source>
        <translation>关于产品系列</translation>
    </message>
    <message>
        <source>%1: read and closed.</source>
        <translation>%1：已阅读并关闭。</translation>
    </message>
    <message>
        <source>%1: the answer is %2.</source>
        <translation>%1：回答是 %2。</translation>
    </message>
</context>
<context>
    <name>MessageBoxes</name>
    <message>
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>The picture was saved. You find it beside the original.</source>
        <translation>图片已保存，位于原图所在的文件夹中。</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>No lens profile was found for this picture. Distortion is not corrected.</source>
        <translation>未找到此图片的镜头配置文件，不会校正畸变。</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>错误</translation>
    </message>
    <message>
        <source>The picture could not be saved, because the disk is full.</source>
        <translation>磁盘已满，无法保存图片。</translation>
    </message>
    <message>
        <source>Yes or no</source>
        <translation>是或否</translation>
    </message>
    <message>
        <source>A picture of this name is there already. Do you want to replace it?</source>
        <translation>已存在同名图片。是否替换？</translation>
    </message>
    <message>
        <source>Save, discard, cancel</source>
        <translation>保存、放弃、取消</translation>
    </message>
    <message>
        <source>The picture was changed. Do you want to save your corrections?</source>
        <translation>图片已更改。是否保存校正？</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>The camera was held upright. Do you want to rotate the picture?</source>
        <translation>拍摄时相机为竖持。是否旋转图片？</translation>
    </message>
    <message>
        <source>Quit during work</source>
        <translation>处理过程中退出</translation>
    </message>
    <message>
        <source>Pictures are still being corrected. What is not finished will be lost.</source>
        <translation>仍有图片正在校正，未完成的部分将丢失。</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Workplace</source>
        <translation>工作区</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Preferences of this product, and the file that the product family shares.</source>
        <translation>此产品的首选项，以及产品系列共享的文件。</translation>
    </message>
    <message>
        <source>Languages</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>One choice for all products; texts, dates and numbers follow it at once.</source>
        <translation>一次选择适用于所有产品；文字、日期和数字立即随之改变。</translation>
    </message>
    <message>
        <source>Storage</source>
        <translation>存储位置</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>产品使用的所有文件夹和文件。</translation>
    </message>
    <message>
        <source>State and process</source>
        <translation>状态和进程</translation>
    </message>
    <message>
        <source>What the product remembers about its launches, and the process it runs in.</source>
        <translation>产品记录的启动信息，以及它所在的进程。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Names, sizes, archives and the file browser.</source>
        <translation>名称、大小、压缩文件和文件管理器。</translation>
    </message>
    <message>
        <source>Asynchronous</source>
        <translation>异步</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>延迟调用、工作项和等待：处理期间窗口仍可响应。</translation>
    </message>
    <message>
        <source>Resources</source>
        <translation>资源</translation>
    </message>
    <message>
        <source>Icons, fonts, countries, rules and style sheets that come with the library.</source>
        <translation>随库提供的图标、字体、国家、规则和样式表。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Standard widgets under the product&apos;s style and style sheets, in the states that they can be in.</source>
        <translation>标准控件在产品样式和样式表下的外观，以及它们的各种状态。</translation>
    </message>
    <message>
        <source>Message boxes</source>
        <translation>消息框</translation>
    </message>
    <message>
        <source>The product&apos;s own boxes: 520 pixels wide, answered by mouse or keyboard.</source>
        <translation>产品自有的消息框：宽 520 像素，可用鼠标或键盘应答。</translation>
    </message>
    <message>
        <source>Fatal messages</source>
        <translation>严重错误</translation>
    </message>
    <message>
        <source>Texts that can be shown when the process is in trouble, without allocating memory.</source>
        <translation>进程出现问题时无需分配内存即可显示的文本。</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web 服务</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>SOAP 客户端及其调用的小型服务，两者都在本进程中。</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>每一行都经由同一桥接到达进程的日志记录器。</translation>
    </message>
</context>
<context>
    <name>ResourcesPage</name>
    <message>
        <source>Icons</source>
        <translation>图标</translation>
    </message>
    <message>
        <source>Fonts</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Countries</source>
        <translation>国家</translation>
    </message>
    <message>
        <source>Rules</source>
        <translation>规则</translation>
    </message>
    <message>
        <source>Style sheets</source>
        <translation>样式表</translation>
    </message>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>悬停</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>焦点</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>深色</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>浅色</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Ground</source>
        <translation>背景</translation>
    </message>
    <message>
        <source>Copy the path</source>
        <translation>复制路径</translation>
    </message>
    <message>
        <source>The six preferred countries stand above the line, which cannot be chosen.</source>
        <translation>六个首选国家位于分隔线上方，分隔线不可选择。</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) lead on from</source>
        <translation>
            <numerusform>%n 条规则的起点：</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n icon(s)</source>
        <translation>
            <numerusform>%n 个图标</numerusform>
        </translation>
    </message>
    <message>
        <source>No icon is chosen.</source>
        <translation>未选择图标。</translation>
    </message>
    <message>
        <source>Copied: %1</source>
        <translation>已复制：%1</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Keep all settings in a temporary file, which is removed afterwards</source>
        <translation>将所有设置保存在临时文件中，之后删除</translation>
    </message>
    <message>
        <source>Logged from the next start on: %1</source>
        <translation>下次启动起记录：%1</translation>
    </message>
    <message>
        <source>Minimum log level</source>
        <translation>日志的最低级别</translation>
    </message>
    <message>
        <source>Write a log, from the next start on</source>
        <translation>从下次启动起写入日志</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>允许发送崩溃报告</translation>
    </message>
    <message>
        <source>Stored: on</source>
        <translation>已保存：开</translation>
    </message>
    <message>
        <source>Stored: off</source>
        <translation>已保存：关</translation>
    </message>
    <message>
        <source>Any value</source>
        <translation>任意值</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>键</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>值</translation>
    </message>
    <message>
        <source>Write</source>
        <translation>写入</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Removed: %1</source>
        <translation>已删除：%1</translation>
    </message>
    <message>
        <source>The file of the product family</source>
        <translation>产品系列的文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Note to the other products</source>
        <translation>给其他产品的备注</translation>
    </message>
    <message>
        <source>Write into the file</source>
        <translation>写入文件</translation>
    </message>
    <message>
        <source>Written into the file of the product family.</source>
        <translation>已写入产品系列的文件。</translation>
    </message>
    <message>
        <source>The file of the product family cannot be written.</source>
        <translation>无法写入产品系列的文件。</translation>
    </message>
    <message>
        <source>Settings are kept in %1.</source>
        <translation>设置保存在 %1。</translation>
    </message>
    <message>
        <source>Settings are kept in the system&apos;s own store again.</source>
        <translation>设置重新保存在系统设置存储中。</translation>
    </message>
    <message>
        <source>Written and read back: %1 = %2</source>
        <translation>已写入并读回：%1 = %2</translation>
    </message>
</context>
<context>
    <name>ShowcaseWindow</name>
    <message>
        <source>Trelio Frame – Showcase</source>
        <translation>Trelio Frame – 功能展示</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>&amp;Language</source>
        <translation>语言(&amp;L)</translation>
    </message>
    <message>
        <source>Show the code</source>
        <translation>显示代码</translation>
    </message>
    <message>
        <source>Code of this page</source>
        <translation>本页代码</translation>
    </message>
</context>
<context>
    <name>StatePage</name>
    <message>
        <source>First launch on this profile</source>
        <translation>此配置的首次启动</translation>
    </message>
    <message>
        <source>Mode of the last launch</source>
        <translation>上次启动的模式</translation>
    </message>
    <message>
        <source>none yet</source>
        <translation>尚无</translation>
    </message>
    <message>
        <source>Identifier of this user</source>
        <translation>此用户的标识符</translation>
    </message>
    <message>
        <source>Reseller</source>
        <translation>经销商</translation>
    </message>
    <message>
        <source>Results saved as actions</source>
        <translation>结果保存为动作</translation>
    </message>
    <message>
        <source>Crash reports may be sent</source>
        <translation>允许发送崩溃报告</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>进程</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>程序</translation>
    </message>
    <message>
        <source>File version</source>
        <translation>文件版本</translation>
    </message>
    <message>
        <source>unknown: the file carries no version</source>
        <translation>未知：文件没有版本</translation>
    </message>
    <message>
        <source>Process number</source>
        <translation>进程号</translation>
    </message>
    <message>
        <source>Folder of the Qt plug-ins</source>
        <translation>Qt 插件的文件夹</translation>
    </message>
    <message>
        <source>Crash counter</source>
        <translation>崩溃计数</translation>
    </message>
    <message>
        <source>A module counts up before risky work and resets the counter after it. What is left after a crash is seen at the next start.</source>
        <translation>模块在有风险的工作之前计数，之后清零。崩溃后留下的计数在下次启动时可见。</translation>
    </message>
    <message>
        <source>Runs that ended abnormally</source>
        <translation>异常结束的次数</translation>
    </message>
    <message>
        <source>Count up</source>
        <translation>计数</translation>
    </message>
    <message>
        <source>Counted up: work is under way.</source>
        <translation>已计数：工作进行中。</translation>
    </message>
    <message>
        <source>Reset the counter</source>
        <translation>计数清零</translation>
    </message>
    <message>
        <source>Reset: the work ended well.</source>
        <translation>已清零：工作正常结束。</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>有</translation>
    </message>
    <message>
        <source>no</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>StoragePage</name>
    <message>
        <source>Data of the product</source>
        <translation>产品数据</translation>
    </message>
    <message>
        <source>Cache on disk</source>
        <translation>磁盘缓存</translation>
    </message>
    <message>
        <source>Cached token</source>
        <translation>缓存的令牌</translation>
    </message>
    <message>
        <source>Packs of the user</source>
        <translation>用户预设包</translation>
    </message>
    <message>
        <source>Favourite presets</source>
        <translation>收藏的预设</translation>
    </message>
    <message>
        <source>Calibration data</source>
        <translation>校准数据</translation>
    </message>
    <message>
        <source>Crash reports</source>
        <translation>崩溃报告</translation>
    </message>
    <message>
        <source>Crash reports under way</source>
        <translation>生成中的崩溃报告</translation>
    </message>
    <message>
        <source>Logs</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Sample pictures</source>
        <translation>示例图片</translation>
    </message>
    <message>
        <source>Preferences of this computer</source>
        <translation>此计算机的首选项</translation>
    </message>
    <message>
        <source>Settings of the product family</source>
        <translation>产品系列的设置</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Read again at %1.</source>
        <translation>已于 %1 重新读取。</translation>
    </message>
    <message>
        <source>Purpose</source>
        <translation>用途</translation>
    </message>
    <message>
        <source>Path</source>
        <translation>路径</translation>
    </message>
    <message>
        <source>Exists</source>
        <translation>存在</translation>
    </message>
    <message>
        <source>not on this system</source>
        <translation>此系统上没有</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>有</translation>
    </message>
    <message>
        <source>no</source>
        <translation>无</translation>
    </message>
</context>
<context>
    <name>StylePage</name>
    <message>
        <source>Normal</source>
        <translation>正常</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>悬停</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>按下</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>焦点</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>禁用</translation>
    </message>
    <message>
        <source>Push buttons</source>
        <translation>按钮</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>默认</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>Flat</source>
        <translation>扁平</translation>
    </message>
    <message>
        <source>Check boxes and radio buttons</source>
        <translation>复选框和单选按钮</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>暮色中的老港口</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>地点</translation>
    </message>
    <message>
        <source>Name of the place</source>
        <translation>地点名称</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>密码</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>无法更改</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>选择与数值</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>范围与进度</translation>
    </message>
    <message>
        <source>Lens</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>Focal length</source>
        <translation>焦距</translation>
    </message>
    <message>
        <source>Aperture</source>
        <translation>光圈</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
</context>
<context>
    <name>ToolPanel</name>
    <message>
        <source>Horizon</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Drag a line along what should be level. With Shift it turns in steps of 15°.</source>
        <translation>沿着应当水平的物体拖出一条线。按住 Shift 时以 15° 为步长转动。</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>梯形校正</translation>
    </message>
    <message>
        <source>Lay both lines along edges that are upright in reality. They snap to the thirds of the picture and to each other; with Ctrl they do not.</source>
        <translation>将两条线沿着现实中竖直的边缘放置。它们会吸附到图片的三分线以及彼此；按住 Ctrl 时不吸附。</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>畸变</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>移轴</translation>
    </message>
    <message>
        <source>What lies between the outer lines stays sharp.</source>
        <translation>外侧线条之间的部分保持清晰。</translation>
    </message>
    <message>
        <source>No tool</source>
        <translation>没有工具</translation>
    </message>
    <message>
        <source>Choose a tool at the left. The rules of the product decide what else a click switches on, switches off or applies.</source>
        <translation>请在左侧选择工具。点击还会打开、关闭或应用什么，由产品的规则决定。</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>接受</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Reset this tool</source>
        <translation>重置此工具</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>From pincushion to barrel</source>
        <translation>从枕形到桶形</translation>
    </message>
    <message>
        <source>Search, for example: canon 24-70</source>
        <translation>搜索，例如：canon 24-70</translation>
    </message>
    <message>
        <source>Camera and lens</source>
        <translation>相机和镜头</translation>
    </message>
    <message>
        <source>Lenses found</source>
        <translation>找到的镜头</translation>
    </message>
    <message>
        <source>Every word has to occur, in any order.</source>
        <translation>所有词都必须出现，顺序不限。</translation>
    </message>
    <message>
        <source>Aspect ratio</source>
        <translation>宽高比</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>模糊</translation>
    </message>
    <message>
        <source>Width of the sharp area</source>
        <translation>清晰区域的宽度</translation>
    </message>
    <message>
        <source>The calibration database cannot be read.</source>
        <translation>无法读取校准数据库。</translation>
    </message>
    <message numerus="yes">
        <source>%n lens(es) found</source>
        <translation>
            <numerusform>找到 %n 个镜头</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n millisecond(s)</source>
        <translation>
            <numerusform>%n 毫秒</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
    <message>
        <source>Request</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>应答</translation>
    </message>
    <message>
        <source>The service has not been asked yet.</source>
        <translation>尚未向服务发出请求。</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>数量</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>单位</translation>
    </message>
    <message>
        <source>Ask the service</source>
        <translation>调用服务</translation>
    </message>
    <message>
        <source>Fault: %1</source>
        <translation>错误：%1</translation>
    </message>
    <message>
        <source>%1 cm</source>
        <translation>%1 cm</translation>
    </message>
</context>
<context>
    <name>Workplace</name>
    <message>
        <source>Horizon</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>梯形校正</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>畸变</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>移轴</translation>
    </message>
    <message numerus="yes">
        <source>%n rule(s) read. The rule behind a click is shown here.</source>
        <translation>
            <numerusform>已读取 %n 条规则。每次点击所依据的规则显示在这里。</numerusform>
        </translation>
    </message>
    <message>
        <source>The rules cannot be read: %1</source>
        <translation>无法读取规则：%1</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>打开…</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Reset all corrections</source>
        <translation>重置所有校正</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Preview of the current tool</source>
        <translation>当前工具的预览</translation>
    </message>
    <message>
        <source>Compare before and after</source>
        <translation>比较校正前后</translation>
    </message>
    <message>
        <source>Presets</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Save the corrections as a preset</source>
        <translation>将校正保存为预设</translation>
    </message>
    <message>
        <source>Apply to the full picture</source>
        <translation>应用到整张图片</translation>
    </message>
    <message>
        <source>Save…</source>
        <translation>保存…</translation>
    </message>
    <message>
        <source>Pack…</source>
        <translation>压缩…</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>移到回收站</translation>
    </message>
    <message>
        <source>No rule of %1 holds for %2.</source>
        <translation>%1 没有适用于 %2 的规则。</translation>
    </message>
    <message>
        <source>Rule: %1</source>
        <translation>规则：%1</translation>
    </message>
    <message>
        <source>Bring back from the recycle bin</source>
        <translation>从回收站还原</translation>
    </message>
    <message>
        <source>No corrections yet</source>
        <translation>还没有校正</translation>
    </message>
    <message>
        <source>Open a photo</source>
        <translation>打开照片</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.bmp)</source>
        <translation>图片 (*.jpg *.jpeg *.png *.bmp)</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>无法读取 %1：%2</translation>
    </message>
    <message>
        <source>Applying the corrections</source>
        <translation>正在应用校正</translation>
    </message>
    <message>
        <source>Stopped. The picture is unchanged.</source>
        <translation>已停止。图片未更改。</translation>
    </message>
    <message>
        <source>%1 cannot be read any more.</source>
        <translation>%1 已无法读取。</translation>
    </message>
    <message>
        <source>Applied in %1 s</source>
        <translation>应用用时 %1 秒</translation>
    </message>
    <message>
        <source>Measure: %1</source>
        <translation>差异值：%1</translation>
    </message>
    <message>
        <source>Save the picture</source>
        <translation>保存图片</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.png)</source>
        <translation>图片 (*.jpg *.png)</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>正在保存 %1</translation>
    </message>
    <message>
        <source>%1 cannot be saved: %2</source>
        <translation>无法保存 %1：%2</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>已保存：%1</translation>
    </message>
    <message>
        <source>Pack the saved pictures</source>
        <translation>压缩保存的图片</translation>
    </message>
    <message>
        <source>Archives (*.zip)</source>
        <translation>压缩文件 (*.zip)</translation>
    </message>
    <message>
        <source>Packing %1</source>
        <translation>正在压缩到 %1</translation>
    </message>
    <message>
        <source>Save a preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>My preset</source>
        <translation>我的预设</translation>
    </message>
    <message>
        <source>Preset saved: %1</source>
        <translation>预设已保存：%1</translation>
    </message>
    <message>
        <source>Brought back: %1</source>
        <translation>已还原：%1</translation>
    </message>
    <message>
        <source>Cannot be brought back: %1</source>
        <translation>无法还原：%1</translation>
    </message>
    <message>
        <source>In the recycle bin: %1</source>
        <translation>已移到回收站：%1</translation>
    </message>
    <message>
        <source>Cannot be moved to the recycle bin: %1</source>
        <translation>无法移到回收站：%1</translation>
    </message>
    <message>
        <source>Before and after are alike.</source>
        <translation>校正前后相同。</translation>
    </message>
    <message>
        <source>Before and after differ.</source>
        <translation>校正前后不同。</translation>
    </message>
</context>
</TS>
