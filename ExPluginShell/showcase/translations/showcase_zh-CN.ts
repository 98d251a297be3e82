<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh-CN" sourcelanguage="en">
<context>
    <name>AsyncPage</name>
    <message>
        <source>Move the slider: its many requests become one call.</source>
        <translation>移动滑块：多次请求合并为一次调用。</translation>
    </message>
    <message>
        <source>Not running.</source>
        <translation>未运行。</translation>
    </message>
    <message>
        <source>While the page waits, clicks are held back and delivered after the wait.</source>
        <translation>等待期间的点击会被保留，等待结束后再送达。</translation>
    </message>
    <message>
        <source>Clicks: 0</source>
        <translation>点击：0</translation>
    </message>
    <message>
        <source>%1 items on a pool of two threads.</source>
        <translation>两个线程上的 %1 个任务。</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Delayed calls</source>
        <translation>延迟调用</translation>
    </message>
    <message>
        <source>Periodic call</source>
        <translation>周期调用</translation>
    </message>
    <message>
        <source>Work items</source>
        <translation>工作项</translation>
    </message>
    <message>
        <source>Waits</source>
        <translation>等待</translation>
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
    <message>
        <source>Requests: %1, calls: %2</source>
        <translation>请求：%1，调用：%2</translation>
    </message>
    <message>
        <source>Every %1 ms.</source>
        <translation>每 %1 毫秒。</translation>
    </message>
    <message>
        <source>Stopped. Calls: %1</source>
        <translation>已停止。调用：%1</translation>
    </message>
    <message>
        <source>Calls: %1</source>
        <translation>调用：%1</translation>
    </message>
    <message>
        <source>%1 of %2 items finished, %3 of them stopped.</source>
        <translation>%2 个任务中已完成 %1 个，其中 %3 个被停止。</translation>
    </message>
    <message>
        <source>Waiting for %1 ms. Clicks are held back.</source>
        <translation>等待 %1 毫秒。点击会被保留。</translation>
    </message>
    <message>
        <source>The wait is over. Clicks held back and delivered now: %1</source>
        <translation>等待结束。被保留并已送达的点击：%1</translation>
    </message>
    <message>
        <source>Waiting for a worker. Clicks are delivered at once.</source>
        <translation>正在等待后台线程。点击会立即送达。</translation>
    </message>
    <message>
        <source>The worker has finished.</source>
        <translation>工作线程已完成。</translation>
    </message>
    <message>
        <source>Clicks: %1</source>
        <translation>点击：%1</translation>
    </message>
</context>
<context>
    <name>DrawingPage</name>
    <message>
        <source>Drag across the picture to draw a line</source>
        <translation>在图片上拖动以绘制线条</translation>
    </message>
    <message>
        <source>Picture with guide lines</source>
        <translation>带参考线的图片</translation>
    </message>
    <message>
        <source>Insert adds a line and Delete removes it, Page Up and Page Down choose one, the arrow keys move its end, with Shift its start.</source>
        <translation>Insert 添加线条，Delete 删除线条，Page Up 和 Page Down 选择线条，方向键移动终点，Shift 加方向键移动起点。</translation>
    </message>
    <message>
        <source>Stretch the pattern</source>
        <translation>拉伸图案</translation>
    </message>
    <message>
        <source>Remove all lines</source>
        <translation>删除所有线条</translation>
    </message>
    <message>
        <source>Lines: %1</source>
        <translation>线条：%1</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>File name</source>
        <translation>文件名</translation>
    </message>
    <message>
        <source>As a name and as a path</source>
        <translation>作为名称和路径</translation>
    </message>
    <message>
        <source>Two paths</source>
        <translation>两个路径</translation>
    </message>
    <message>
        <source>As a whole and without suffix</source>
        <translation>完整比较和不含扩展名比较</translation>
    </message>
    <message>
        <source>Sizes as text</source>
        <translation>大小的文字表示</translation>
    </message>
    <message>
        <source>A folder as an archive</source>
        <translation>将文件夹打包</translation>
    </message>
    <message>
        <source>Choose...</source>
        <translation>选择…</translation>
    </message>
    <message>
        <source>Pack</source>
        <translation>压缩</translation>
    </message>
    <message>
        <source>Unpack and compare</source>
        <translation>解包并比较</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>The archive</source>
        <translation>压缩文件</translation>
    </message>
    <message>
        <source>Show in the file browser</source>
        <translation>在文件管理器中显示</translation>
    </message>
    <message>
        <source>Send to the recycle bin</source>
        <translation>移到回收站</translation>
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
        <source>equal</source>
        <translation>相同</translation>
    </message>
    <message>
        <source>different</source>
        <translation>不同</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Not done: cancelled, or a file can&apos;t be read or written.</source>
        <translation>未完成：已取消，或有文件无法读写。</translation>
    </message>
    <message>
        <source>Files packed: %1, archive: %2</source>
        <translation>已压缩的文件：%1，压缩文件：%2</translation>
    </message>
    <message>
        <source>Files unpacked: %1. Both folders are equal.</source>
        <translation>已解压的文件：%1。两个文件夹相同。</translation>
    </message>
    <message>
        <source>The folders differ: %1</source>
        <translation>文件夹不同：%1</translation>
    </message>
    <message>
        <source>The archive is in the recycle bin.</source>
        <translation>压缩文件已在回收站中。</translation>
    </message>
    <message>
        <source>There is no archive.</source>
        <translation>没有压缩文件。</translation>
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
</context>
<context>
    <name>LoggingPage</name>
    <message>
        <source>Log folder</source>
        <translation>日志文件夹</translation>
    </message>
    <message>
        <source>Minimum level</source>
        <translation>最低级别</translation>
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
        <source>The log of this process</source>
        <translation>此进程的日志</translation>
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
        <source>No answer yet</source>
        <translation>尚无应答</translation>
    </message>
    <message>
        <source>The last answer: %1</source>
        <translation>上次应答：%1</translation>
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
    <name>NativeDialogsPage</name>
    <message>
        <source>Pictures (*.jpg *.png *.tif);;All files (*)</source>
        <translation>图片 (*.jpg *.png *.tif);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Open a file</source>
        <translation>打开文件</translation>
    </message>
    <message>
        <source>Open files</source>
        <translation>打开多个文件</translation>
    </message>
    <message>
        <source>Save a file</source>
        <translation>保存文件</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>选择文件夹</translation>
    </message>
    <message>
        <source>Choose a folder by its pictures</source>
        <translation>按图片选择文件夹</translation>
    </message>
    <message>
        <source>What was chosen</source>
        <translation>所选内容</translation>
    </message>
</context>
<context>
    <name>Pages</name>
    <message>
        <source>Logging</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Every line goes through one bridge to the logger of the process.</source>
        <translation>每一行都经由同一桥接到达进程的日志记录器。</translation>
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
        <source>Storage</source>
        <translation>存储位置</translation>
    </message>
    <message>
        <source>Every folder and file that the product knows.</source>
        <translation>产品使用的所有文件夹和文件。</translation>
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
        <source>Asynchronous</source>
        <translation>异步</translation>
    </message>
    <message>
        <source>Delayed calls, work items and waits: the window answers while something is under way.</source>
        <translation>延迟调用、工作项和等待：处理期间窗口仍可响应。</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Names, sizes, archives, the recycle bin and the file browser.</source>
        <translation>名称、大小、压缩文件、回收站和文件管理器。</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>外观</translation>
    </message>
    <message>
        <source>Every standard widget under the product&apos;s style and style sheets.</source>
        <translation>使用产品样式和样式表的所有标准控件。</translation>
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
        <source>Drawing tools</source>
        <translation>绘图工具</translation>
    </message>
    <message>
        <source>Guide lines and cursors of the correction tools, on a picture painted by code.</source>
        <translation>校正工具的参考线和光标，图片由程序绘制。</translation>
    </message>
    <message>
        <source>Native dialogs</source>
        <translation>系统对话框</translation>
    </message>
    <message>
        <source>The dialogs of the system for files and folders.</source>
        <translation>用于文件和文件夹的系统对话框。</translation>
    </message>
    <message>
        <source>Web service</source>
        <translation>Web 服务</translation>
    </message>
    <message>
        <source>A SOAP client and the small service that it asks, both in this process.</source>
        <translation>SOAP 客户端及其调用的小型服务，两者都在本进程中。</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Values are kept in</source>
        <translation>值保存于</translation>
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
        <source>a temporary file, gone at the end</source>
        <translation>临时文件，结束时删除</translation>
    </message>
    <message>
        <source>the system&apos;s own store</source>
        <translation>系统自身的存储</translation>
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
        <source>Other buttons</source>
        <translation>其他按钮</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>A tool tip explains in one sentence.</source>
        <translation>工具提示用一句话说明。</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>选项</translation>
    </message>
    <message>
        <source>Correct automatically</source>
        <translation>自动校正</translation>
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
        <source>On</source>
        <translation>开</translation>
    </message>
    <message>
        <source>Partly</source>
        <translation>部分</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>文本</translation>
    </message>
    <message>
        <source>Old harbour at dusk</source>
        <translation>暮色中的老港口</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>标题</translation>
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
        <source>Can be read only</source>
        <translation>只读</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Cannot be changed</source>
        <translation>无法更改</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>选择与数值</translation>
    </message>
    <message>
        <source>Perspective</source>
        <translation>透视</translation>
    </message>
    <message>
        <source>Ranges and progress</source>
        <translation>范围与进度</translation>
    </message>
    <message>
        <source>Lenses</source>
        <translation>镜头</translation>
    </message>
    <message>
        <source>History</source>
        <translation>历史记录</translation>
    </message>
    <message>
        <source>Metadata</source>
        <translation>元数据</translation>
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
        <source>Shape</source>
        <translation>形状</translation>
    </message>
    <message>
        <source>Keystoning</source>
        <translation>梯形校正</translation>
    </message>
    <message>
        <source>Horizon</source>
        <translation>水平</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>Distortion</source>
        <translation>畸变</translation>
    </message>
    <message>
        <source>Grid</source>
        <translation>网格</translation>
    </message>
    <message>
        <source>Guides</source>
        <translation>参考线</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Loupe</source>
        <translation>放大镜</translation>
    </message>
    <message>
        <source>Straight lines stay straight, and the tower stops leaning backwards.</source>
        <translation>直线保持笔直，塔楼不再向后倾斜。</translation>
    </message>
    <message>
        <source>Tilt-shift</source>
        <translation>移轴</translation>
    </message>
    <message>
        <source>Blurred at both ends</source>
        <translation>两端模糊</translation>
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
        <source>Fit to window</source>
        <translation>适合窗口</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Rotate</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>编辑</translation>
    </message>
    <message>
        <source>View</source>
        <translation>视图</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
</context>
<context>
    <name>WebServicePage</name>
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
        <source>Request</source>
        <translation>请求</translation>
    </message>
    <message>
        <source>Answer</source>
        <translation>应答</translation>
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
</TS>
