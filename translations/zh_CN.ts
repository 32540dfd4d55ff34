<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>TestChartTools::Widget</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 至 %3</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: 最多 %2 个字符</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>AddtoCustomColors</source>
        <translation>添加到自定义颜色</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>应用</translation>
    </message>
    <message>
        <source>Basiccolors</source>
        <translation>基本颜色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝：</translation>
    </message>
    <message>
        <source>BorderWidth</source>
        <translation>线宽</translation>
    </message>
    <message>
        <source>Box RowColNum</source>
        <translation>箱体行列数</translation>
    </message>
    <message>
        <source>BoxNumShow</source>
        <translation>箱体数</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Brightness in percent</source>
        <translation>亮度（百分比）</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cannel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Chart height in pixels</source>
        <translation>测试图高度（像素）</translation>
    </message>
    <message>
        <source>Chart width in pixels</source>
        <translation>测试图宽度（像素）</translation>
    </message>
    <message>
        <source>Chess</source>
        <translation>棋盘格</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>圆半径</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>彩条</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>边框颜色</translation>
    </message>
    <message>
        <source>Color of the circles</source>
        <translation>圆的颜色</translation>
    </message>
    <message>
        <source>Color of the custom text</source>
        <translation>自定义文字的颜色</translation>
    </message>
    <message>
        <source>Color of the diagonals</source>
        <translation>对角线的颜色</translation>
    </message>
    <message>
        <source>Color of the even cabinets</source>
        <translation>偶数箱体的颜色</translation>
    </message>
    <message>
        <source>Color of the information line</source>
        <translation>信息行的颜色</translation>
    </message>
    <message>
        <source>Color of the labels</source>
        <translation>编号的颜色</translation>
    </message>
    <message>
        <source>Color of the logo text</source>
        <translation>标志文字的颜色</translation>
    </message>
    <message>
        <source>Color of the odd cabinets</source>
        <translation>奇数箱体的颜色</translation>
    </message>
    <message>
        <source>Colors of the color bar</source>
        <translation>彩条的颜色</translation>
    </message>
    <message>
        <source>Columns of cabinets</source>
        <translation>箱体列数</translation>
    </message>
    <message>
        <source>Combination Mode</source>
        <translation>组合模式</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</source>
        <translation>Ctrl 加滚轮、加号和减号缩放；0 显示全部，1 逐像素；拖动和方向键移动</translation>
    </message>
    <message>
        <source>Custom text</source>
        <translation>自定义文字</translation>
    </message>
    <message>
        <source>Customcolors</source>
        <translation>自定义颜色</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>DeleteColorBar</source>
        <translation>删除此颜色？</translation>
    </message>
    <message>
        <source>Display Position</source>
        <translation>显示位置</translation>
    </message>
    <message>
        <source>Display content personalization</source>
        <translation>显示内容个性化</translation>
    </message>
    <message>
        <source>Display custom text</source>
        <translation>自定义文字</translation>
    </message>
    <message>
        <source>Double click or Enter changes a color, Alt+Up and Alt+Down move it</source>
        <translation>双击或按回车可更改颜色，Alt+上/下可移动颜色</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶数</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应</translation>
    </message>
    <message>
        <source>From up to down increase Frome left to right increase</source>
        <translation>行从上到下，列从左到右</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>渐变</translation>
    </message>
    <message>
        <source>Gradient between the colors</source>
        <translation>颜色之间渐变</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿：</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相：</translation>
    </message>
    <message>
        <source>Layer settings</source>
        <translation>图层设置</translation>
    </message>
    <message>
        <source>Left Down</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Left Down Right Up</source>
        <translation>左下和右上</translation>
    </message>
    <message>
        <source>Left Up</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Left Up Right Down</source>
        <translation>左上和右下</translation>
    </message>
    <message>
        <source>Letter Mode</source>
        <translation>字母模式</translation>
    </message>
    <message>
        <source>Line width of the circles</source>
        <translation>圆的线宽</translation>
    </message>
    <message>
        <source>Line width of the diagonals</source>
        <translation>对角线的线宽</translation>
    </message>
    <message>
        <source>Logo Style</source>
        <translation>标志样式</translation>
    </message>
    <message>
        <source>Mode selection</source>
        <translation>模式选择</translation>
    </message>
    <message>
        <source>Next color</source>
        <translation>下一个颜色</translation>
    </message>
    <message>
        <source>Num Mode</source>
        <translation>数字模式</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Odd</source>
        <translation>奇数</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>不透明度</translation>
    </message>
    <message>
        <source>Opacity of the logo in percent</source>
        <translation>标志不透明度（百分比）</translation>
    </message>
    <message>
        <source>Order of the labels</source>
        <translation>编号的顺序</translation>
    </message>
    <message>
        <source>OutBorder</source>
        <translation>外边框</translation>
    </message>
    <message>
        <source>PickScreenColor</source>
        <translation>拾取屏幕颜色</translation>
    </message>
    <message>
        <source>Picture Logo</source>
        <translation>图片标志</translation>
    </message>
    <message>
        <source>Position adjustment</source>
        <translation>位置调整</translation>
    </message>
    <message>
        <source>Position of the labels</source>
        <translation>编号的位置</translation>
    </message>
    <message>
        <source>Position of the logo</source>
        <translation>标志的位置</translation>
    </message>
    <message>
        <source>Preview of the chart</source>
        <translation>测试图预览</translation>
    </message>
    <message>
        <source>Previous color</source>
        <translation>上一个颜色</translation>
    </message>
    <message>
        <source>Radius of the circles</source>
        <translation>圆的半径</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红：</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>恢复为 100</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>ResolutionShow</source>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Right Down</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Right Up</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Rows of cabinets</source>
        <translation>箱体行数</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>饱和度：</translation>
    </message>
    <message>
        <source>Scale Logo</source>
        <translation>标志缩放</translation>
    </message>
    <message>
        <source>SelectColor</source>
        <translation>选择颜色</translation>
    </message>
    <message>
        <source>SelectImage</source>
        <translation>选择标志图片</translation>
    </message>
    <message>
        <source>Serial Size</source>
        <translation>编号字号</translation>
    </message>
    <message>
        <source>Show Circle</source>
        <translation>显示圆</translation>
    </message>
    <message>
        <source>Show Diagonal</source>
        <translation>显示对角线</translation>
    </message>
    <message>
        <source>Show Logo</source>
        <translation>显示标志</translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation>编号模式</translation>
    </message>
    <message>
        <source>Show Position</source>
        <translation>显示位置</translation>
    </message>
    <message>
        <source>Show Resolution</source>
        <translation>显示分辨率</translation>
    </message>
    <message>
        <source>Show Serial Number</source>
        <translation>显示编号</translation>
    </message>
    <message>
        <source>Show Size</source>
        <translation>显示大小</translation>
    </message>
    <message>
        <source>Show pixel for pixel</source>
        <translation>逐像素显示</translation>
    </message>
    <message>
        <source>Show the border</source>
        <translation>显示边框</translation>
    </message>
    <message>
        <source>Show the circles</source>
        <translation>显示圆形</translation>
    </message>
    <message>
        <source>Show the custom text</source>
        <translation>显示自定义文字</translation>
    </message>
    <message>
        <source>Show the diagonals</source>
        <translation>显示对角线</translation>
    </message>
    <message>
        <source>Show the information line</source>
        <translation>显示信息行</translation>
    </message>
    <message>
        <source>Show the labels</source>
        <translation>显示箱体编号</translation>
    </message>
    <message>
        <source>Show the logo</source>
        <translation>显示标志</translation>
    </message>
    <message>
        <source>Show the whole chart</source>
        <translation>显示整张测试图</translation>
    </message>
    <message>
        <source>Sideways shift of the logo in pixels</source>
        <translation>标志水平偏移（像素）</translation>
    </message>
    <message>
        <source>Size of the custom text</source>
        <translation>自定义文字的大小</translation>
    </message>
    <message>
        <source>Size of the information line</source>
        <translation>信息行的大小</translation>
    </message>
    <message>
        <source>Size of the labels</source>
        <translation>编号的大小</translation>
    </message>
    <message>
        <source>Size of the logo in percent</source>
        <translation>标志大小（百分比）</translation>
    </message>
    <message>
        <source>Size of the logo text</source>
        <translation>标志文字的大小</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>排序方式</translation>
    </message>
    <message>
        <source>SuggestTransparentbackgroundrecommended</source>
        <translation>建议使用透明背景</translation>
    </message>
    <message>
        <source>TestImage</source>
        <translation>测试图</translation>
    </message>
    <message>
        <source>Text Input</source>
        <translation>文字输入</translation>
    </message>
    <message>
        <source>Text Logo</source>
        <translation>文字标志</translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation>文字大小</translation>
    </message>
    <message>
        <source>Text of the logo</source>
        <translation>标志的文字</translation>
    </message>
    <message>
        <source>UpLogo</source>
        <translation>上传标志</translation>
    </message>
    <message>
        <source>Upload your logo</source>
        <translation>选择图片…</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>明度：</translation>
    </message>
    <message>
        <source>Vertical shift of the logo in pixels</source>
        <translation>标志垂直偏移（像素）</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>设置</translation>
    </message>
    <message>
        <source>Width of the border</source>
        <translation>边框宽度</translation>
    </message>
    <message>
        <source>X</source>
        <translation>X</translation>
    </message>
    <message>
        <source>Y</source>
        <translation>Y</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>保持打开</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right decrease</source>
        <translation>行从下到上，列从右到左</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right increase</source>
        <translation>行从下到上，列从左到右</translation>
    </message>
    <message>
        <source>from up to down increase frome left to right decrease</source>
        <translation>行从上到下，列从右到左</translation>
    </message>
    <message>
        <source>small</source>
        <translation>最小化</translation>
    </message>
</context>
<context>
    <name>ChartDesk::MainWindow</name>
    <message>
        <source>English</source>
        <extracomment>The name of this file's language, in the language itself</extracomment>
        <translation>简体中文</translation>
    </message>
    <message>
        <source>Test charts</source>
        <translation>测试图</translation>
    </message>
    <message>
        <source>New chart</source>
        <translation>新建测试图</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>编辑测试图</translation>
    </message>
    <message>
        <source>Choose folder…</source>
        <translation>选择文件夹…</translation>
    </message>
    <message>
        <source>Coded markers</source>
        <translation>编码标记</translation>
    </message>
    <message>
        <source>The cabinets have no room for markers.</source>
        <translation>箱体中没有放置标记的空间。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>语言</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>测试图库</translation>
    </message>
    <message>
        <source>Choose the folder of the charts</source>
        <translation>选择测试图文件夹</translation>
    </message>
    <message>
        <source>No charts here yet. Press “New chart” to make the first one.</source>
        <translation>这里还没有测试图。按“新建测试图”创建第一张。</translation>
    </message>
    <message>
        <source>The record of this chart cannot be read:</source>
        <translation>无法读取此测试图的记录：</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>已保存：</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>刷新</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>放弃更改</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>继续编辑</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>This chart has changes that are not saved.</source>
        <translation>此测试图有尚未保存的更改。</translation>
    </message>
    <message>
        <source>This chart could not be saved.</source>
        <translation>无法保存此测试图。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>重试</translation>
    </message>
    <message>
        <source>This file is damaged, or no picture that can be read.</source>
        <translation>此文件已损坏，或不是可读取的图片。</translation>
    </message>
    <message>
        <source>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</source>
        <translation>图片为 %1 x %2 像素；徽标最大为 %3 x %4。</translation>
    </message>
    <message>
        <source>Save elsewhere…</source>
        <translation>保存到其他位置…</translation>
    </message>
    <message>
        <source>You have no permission to write into “%1”.</source>
        <translation>您没有写入“%1”的权限。</translation>
    </message>
    <message>
        <source>“%1” lies on a disk that can only be read.</source>
        <translation>“%1”位于只读磁盘上。</translation>
    </message>
    <message>
        <source>There is no space left on the disk of “%1”.</source>
        <translation>“%1”所在的磁盘空间不足。</translation>
    </message>
    <message>
        <source>“%1” cannot be a folder: a file is in its way.</source>
        <translation>“%1”无法作为文件夹：已有同名文件。</translation>
    </message>
    <message>
        <source>The folder “%1” is gone.</source>
        <translation>文件夹“%1”已不存在。</translation>
    </message>
    <message>
        <source>An edit was not finished. Continue with it?</source>
        <translation>有一次编辑尚未完成。要继续吗？</translation>
    </message>
    <message>
        <source>%1, last changed %2</source>
        <translation>%1，上次更改 %2</translation>
    </message>
    <message>
        <source>The logo of this chart is missing:</source>
        <translation>此测试图缺少徽标：</translation>
    </message>
    <message>
        <source>Somebody changed this chart meanwhile; both are kept:</source>
        <translation>此测试图同时被他人更改，两个版本均已保留：</translation>
    </message>
    <message>
        <source>This chart goes beyond what can be edited here:</source>
        <translation>此测试图超出了此处可编辑的范围：</translation>
    </message>
    <message>
        <source>There is not enough memory for this chart.</source>
        <translation>内存不足，无法处理此测试图。</translation>
    </message>
    <message>
        <source>Next chart</source>
        <translation>下一张测试图</translation>
    </message>
    <message>
        <source>Previous chart</source>
        <translation>上一张测试图</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黑</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Colors in turn</source>
        <translation>依次显示颜色</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>灰阶</translation>
    </message>
    <message>
        <source>Read a photo…</source>
        <translation>读取照片…</translation>
    </message>
    <message>
        <source>Walk the wrong ones</source>
        <translation>依次显示有误的箱体</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>正在读取 %1…</translation>
    </message>
    <message>
        <source>Show this chart on a display first.</source>
        <translation>请先在显示器上显示此测试图。</translation>
    </message>
    <message>
        <source>This picture has no record, so its cabinets are not known.</source>
        <translation>此图片没有记录，因此不知道其箱体。</translation>
    </message>
    <message>
        <source>This photo has too many pixels.</source>
        <translation>这张照片的像素过多。</translation>
    </message>
    <message>
        <source>%1: its texts are too long.</source>
        <translation>%1：其中的文字过长。</translation>
    </message>
    <message>
        <source>This program was built without OpenCV, which reads photos.</source>
        <translation>此程序构建时未包含读取照片所需的 OpenCV。</translation>
    </message>
    <message>
        <source>Walk through the cabinets</source>
        <translation>逐个走查箱体</translation>
    </message>
    <message>
        <source>Single cabinet</source>
        <translation>单个箱体</translation>
    </message>
    <message>
        <source>Single row</source>
        <translation>单行</translation>
    </message>
    <message>
        <source>Single column</source>
        <translation>单列</translation>
    </message>
    <message>
        <source>By rows or by columns</source>
        <translation>按行或按列</translation>
    </message>
    <message>
        <source>Back and forth</source>
        <translation>往返</translation>
    </message>
    <message>
        <source>Moving line</source>
        <translation>移动线条</translation>
    </message>
    <message>
        <source>Frame counter</source>
        <translation>帧计数器</translation>
    </message>
    <message>
        <source>Run or pause</source>
        <translation>运行或暂停</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>加快</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>减慢</translation>
    </message>
    <message>
        <source>This chart cannot be shown.</source>
        <translation>无法显示此测试图。</translation>
    </message>
    <message>
        <source>Show on…</source>
        <translation>显示到…</translation>
    </message>
    <message>
        <source>Stop showing</source>
        <translation>停止显示</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message>
        <source>Horizontal line at %1</source>
        <translation>水平线，位置 %1</translation>
    </message>
    <message>
        <source>Vertical line at %1</source>
        <translation>垂直线，位置 %1</translation>
    </message>
    <message>
        <source>Diagonal line at %1</source>
        <translation>斜线，位置 %1</translation>
    </message>
    <message>
        <source>Row %1 (%2 of %3)</source>
        <translation>行 %1（%2 / %3）</translation>
    </message>
    <message>
        <source>Column %1 (%2 of %3)</source>
        <translation>列 %1（%2 / %3）</translation>
    </message>
    <message>
        <source>Cabinet %1 (%2 of %3)</source>
        <translation>箱体 %1（%2 / %3）</translation>
    </message>
    <message>
        <source>A chart is shown.</source>
        <translation>正在显示测试图。</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>已断开</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>左侧 %1</translation>
    </message>
    <message>
        <source>%1 above</source>
        <translation>上方 %1</translation>
    </message>
    <message>
        <source>%1 right</source>
        <translation>右侧 %1</translation>
    </message>
    <message>
        <source>%1 below</source>
        <translation>下方 %1</translation>
    </message>
    <message>
        <source>The chart has %1 pixels, the display %2.</source>
        <translation>测试图为 %1 像素，显示器为 %2。</translation>
    </message>
    <message>
        <source>Nothing of the chart is on the display.</source>
        <translation>测试图完全不在显示器上。</translation>
    </message>
    <message>
        <source>Pixels cut off: %1.</source>
        <translation>被裁掉的像素：%1。</translation>
    </message>
    <message>
        <source>Pixels that stay black: %1.</source>
        <translation>保持黑色的像素：%1。</translation>
    </message>
    <message>
        <source>Color %1, %2, %3</source>
        <translation>颜色 %1, %2, %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, scaled to %3 %</source>
        <translation>%1 x %2 像素，缩放 %3 %</translation>
    </message>
    <message>
        <source>Pixels from the left of the display</source>
        <translation>距显示器左边的像素数</translation>
    </message>
    <message>
        <source>Pixels from the top of the display</source>
        <translation>距显示器上边的像素数</translation>
    </message>
    <message>
        <source>The displays of this desktop</source>
        <translation>此桌面的显示器</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Number the displays</source>
        <translation>显示编号</translation>
    </message>
    <message>
        <source>The chart fills the display exactly.</source>
        <translation>测试图正好铺满显示器。</translation>
    </message>
    <message>
        <source>%1 pixels a frame</source>
        <translation>每帧 %1 像素</translation>
    </message>
    <message>
        <source>%1 steps a minute</source>
        <translation>每分钟 %1 步</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>第 %1 帧</translation>
    </message>
    <message>
        <source>New from…</source>
        <translation>从预设新建…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>复制一份</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>重命名…</translation>
    </message>
    <message>
        <source>Tags…</source>
        <translation>标签…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>删除</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>复制图像</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>找不到文件或文件夹“%1”。</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>测试图</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名称：</translation>
    </message>
    <message>
        <source>This chart could not be deleted.</source>
        <translation>无法删除此测试图。</translation>
    </message>
    <message>
        <source>Tags, with commas between:</source>
        <translation>标签（用逗号分隔）：</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>操作未能完成。</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message>
        <source>The wall</source>
        <translation>LED 屏</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>显示内容</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>“%1”不能用作文件名。</translation>
    </message>
    <message>
        <source>There is a chart called “%1” already.</source>
        <translation>已有名为“%1”的测试图。</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>已删除：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Brings the chart back, within ten seconds</source>
        <translation>十秒内可恢复此测试图</translation>
    </message>
    <message>
        <source>Search name, date, size or tag</source>
        <translation>搜索名称、日期、尺寸或标签</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>最新在前</translation>
    </message>
    <message>
        <source>Oldest first</source>
        <translation>最早在前</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>按名称</translation>
    </message>
    <message>
        <source>Order of the charts</source>
        <translation>测试图的排序</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Size by one pixel</source>
        <translation>大小增减一个像素</translation>
    </message>
    <message>
        <source>Size by ten pixels</source>
        <translation>大小增减十个像素</translation>
    </message>
    <message>
        <source>Next cabinet</source>
        <translation>下一个箱体</translation>
    </message>
    <message>
        <source>Extend the selection</source>
        <translation>扩大选择</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Jump to a chart on the output</source>
        <translation>在输出上跳到某张测试图</translation>
    </message>
    <message>
        <source>Leave the output</source>
        <translation>退出输出</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>手册</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>About</source>
        <translation>关于</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>复制诊断信息</translation>
    </message>
    <message>
        <source>The next start has this theme.</source>
        <translation>此主题将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>主题</translation>
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
        <source>Recent folders</source>
        <translation>最近的文件夹</translation>
    </message>
    <message>
        <source>Taken in:</source>
        <translation>已收入:</translation>
    </message>
    <message>
        <source>Taken in, with its chart:</source>
        <translation>已连同测试图收入：</translation>
    </message>
    <message>
        <source>Taken in, with its walls:</source>
        <translation>已连同其屏收入:</translation>
    </message>
    <message>
        <source>Two clicks edit a chart</source>
        <translation>双击可编辑测试图</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>红色</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>绿色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>蓝色</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>灰色</translation>
    </message>
    <message>
        <source>8 greys</source>
        <translation>8 级灰度</translation>
    </message>
    <message>
        <source>16 greys</source>
        <translation>16 级灰度</translation>
    </message>
    <message>
        <source>Grey ramp</source>
        <translation>灰度渐变</translation>
    </message>
    <message>
        <source>Color bars</source>
        <translation>彩条</translation>
    </message>
    <message>
        <source>Chessboard</source>
        <translation>棋盘格</translation>
    </message>
    <message>
        <source>Numbers from top left</source>
        <translation>从左上起编号</translation>
    </message>
    <message>
        <source>Numbers from top right</source>
        <translation>从右上起编号</translation>
    </message>
    <message>
        <source>Numbers from bottom left</source>
        <translation>从左下起编号</translation>
    </message>
    <message>
        <source>Numbers from bottom right</source>
        <translation>从右下起编号</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 x %4 cabinets</source>
        <translation>%1 x %2 像素，%3 x %4 箱体</translation>
    </message>
    <message>
        <source>This wall cannot be read:</source>
        <translation>无法读取此屏:</translation>
    </message>
    <message>
        <source>The wall could not be saved:</source>
        <translation>无法保存此屏:</translation>
    </message>
    <message>
        <source>New wall</source>
        <translation>新建屏</translation>
    </message>
    <message>
        <source>Remove or restore</source>
        <translation>移除或恢复</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>尺寸</translation>
    </message>
    <message>
        <source>Draw data cable</source>
        <translation>绘制数据线</translation>
    </message>
    <message>
        <source>Draw power cable</source>
        <translation>绘制电源线</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>屏</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>行</translation>
    </message>
    <message>
        <source>Selected cabinets</source>
        <translation>所选箱体</translation>
    </message>
    <message>
        <source>Width of the columns</source>
        <translation>列宽</translation>
    </message>
    <message>
        <source>Height of the rows</source>
        <translation>行高</translation>
    </message>
    <message>
        <source>Name of the cabinet</source>
        <translation>箱体名称</translation>
    </message>
    <message>
        <source>No cabinet here</source>
        <translation>此处无箱体</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>起点</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Goes along</source>
        <translation>沿</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>方式</translation>
    </message>
    <message>
        <source>One way</source>
        <translation>单向</translation>
    </message>
    <message>
        <source>Each by itself</source>
        <translation>各自独立</translation>
    </message>
    <message>
        <source>Data cables</source>
        <translation>数据线</translation>
    </message>
    <message>
        <source>Pixels of a port</source>
        <translation>每端口像素</translation>
    </message>
    <message>
        <source>Bits of a color</source>
        <translation>每色位数</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>每秒帧数</translation>
    </message>
    <message>
        <source>Backup ports</source>
        <translation>备份端口</translation>
    </message>
    <message>
        <source>Power cables</source>
        <translation>电源线</translation>
    </message>
    <message>
        <source>Watts of a cabinet</source>
        <translation>每箱体瓦数</translation>
    </message>
    <message>
        <source>Watts of a circuit</source>
        <translation>每回路瓦数</translation>
    </message>
    <message>
        <source>Drawn over the chart</source>
        <translation>绘于测试图上</translation>
    </message>
    <message>
        <source>Black where no cabinet is</source>
        <translation>无箱体处为黑</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>轮廓</translation>
    </message>
    <message>
        <source>Frames of one pixel</source>
        <translation>一像素边框</translation>
    </message>
    <message>
        <source>Names of cabinets</source>
        <translation>箱体名称</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>坐标</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全选</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>整屏</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Cables by the pattern</source>
        <translation>按方式布线</translation>
    </message>
    <message>
        <source>Arrows change the size by one pixel, with Shift by ten</source>
        <translation>方向键每次改变一个像素，按住 Shift 改变十个</translation>
    </message>
    <message>
        <source>Edit wall</source>
        <translation>编辑屏</translation>
    </message>
    <message>
        <source>Save the changes of this wall?</source>
        <translation>保存对此屏的更改?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2</source>
        <translation>%1 显示的是 %2 的内容</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2, turned by %3 degrees</source>
        <translation>%1 显示的是 %2 的内容，且旋转了 %3 度</translation>
    </message>
    <message>
        <source>%1 is mirrored top to bottom</source>
        <translation>%1 上下镜像</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right</source>
        <translation>%1 左右镜像</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right, turned by %2 degrees</source>
        <translation>%1 左右镜像，且旋转了 %2 度</translation>
    </message>
    <message>
        <source>%1 is dark</source>
        <translation>%1 不亮</translation>
    </message>
    <message>
        <source>%1 shows nothing but one colour</source>
        <translation>%1 只显示单一颜色</translation>
    </message>
    <message>
        <source>%1 shows something else</source>
        <translation>%1 显示的是其他内容</translation>
    </message>
    <message>
        <source>%1 is too dark</source>
        <translation>%1 过暗</translation>
    </message>
    <message>
        <source>%1 is too bright</source>
        <translation>%1 过亮</translation>
    </message>
    <message>
        <source>%1 shows wrong colours</source>
        <translation>%1 颜色有误</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 被遮挡</translation>
    </message>
    <message>
        <source>%1 could not be judged</source>
        <translation>%1 无法判断</translation>
    </message>
    <message>
        <source>%1 row</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 行</translation>
    </message>
    <message>
        <source>%1 column</source>
        <translation>%1 列</translation>
    </message>
    <message>
        <source>%1 columns</source>
        <translation>%1 列</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same turned by 180 degrees; give it labels</source>
        <translation>无法确定各个箱体：此测试图旋转 180 度后看起来相同；请添加标签</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</source>
        <translation>无法确定各个箱体：此测试图移动 %1 后看起来相同；请添加标签</translation>
    </message>
    <message>
        <source>there is no picture to read</source>
        <translation>没有可读取的图片</translation>
    </message>
    <message>
        <source>the chart was not found in the picture</source>
        <translation>在图片中未找到测试图</translation>
    </message>
    <message>
        <source>the chart was not found in time</source>
        <translation>未能及时找到测试图</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the left edge</source>
        <translation>测试图左边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the top edge</source>
        <translation>测试图上边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the right edge</source>
        <translation>测试图右边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the bottom edge</source>
        <translation>测试图下边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the left edge</source>
        <translation>测试图左边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the top edge</source>
        <translation>测试图上边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the right edge</source>
        <translation>测试图右边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the bottom edge</source>
        <translation>测试图下边缘缺少 %1 个像素</translation>
    </message>
    <message>
        <source>%1 is turned by %2 degrees</source>
        <translation>%1 旋转了 %2 度</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right chart pixels</source>
        <translation>%1 向右偏移了 %2 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left chart pixels</source>
        <translation>%1 向左偏移了 %2 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 down chart pixels</source>
        <translation>%1 向下偏移了 %2 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 up chart pixels</source>
        <translation>%1 向上偏移了 %2 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 down chart pixels</source>
        <translation>%1 向右偏移了 %2 个像素，向下偏移了 %3 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 up chart pixels</source>
        <translation>%1 向右偏移了 %2 个像素，向上偏移了 %3 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 down chart pixels</source>
        <translation>%1 向左偏移了 %2 个像素，向下偏移了 %3 个像素</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 up chart pixels</source>
        <translation>%1 向左偏移了 %2 个像素，向上偏移了 %3 个像素</translation>
    </message>
    <message>
        <source>the whole chart is mirrored left to right</source>
        <translation>整个测试图左右镜像</translation>
    </message>
    <message>
        <source>the whole chart is turned by %1 degrees</source>
        <translation>整个测试图旋转了 %1 度</translation>
    </message>
    <message>
        <source>%1 and %2 are swapped</source>
        <translation>%1 与 %2 互换了</translation>
    </message>
    <message>
        <source>hidden: %1</source>
        <translation>被遮挡：%1</translation>
    </message>
    <message>
        <source>not sure about: %1</source>
        <translation>不确定：%1</translation>
    </message>
    <message>
        <source>nothing wrong was seen</source>
        <translation>未发现错误</translation>
    </message>
    <message>
        <source>Whole chart</source>
        <translation>整张测试图</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>逐像素</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>编辑器</translation>
    </message>
</context>
</TS>
