<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>TestChartTools::Widget</name>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2～%3</translation>
    </message>
    <message>
        <source>%1: at most %2 characters</source>
        <translation>%1: 最大 %2 文字</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>AddtoCustomColors</source>
        <translation>カスタムカラーに追加</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Basiccolors</source>
        <translation>基本色</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青:</translation>
    </message>
    <message>
        <source>BorderWidth</source>
        <translation>線幅</translation>
    </message>
    <message>
        <source>Box RowColNum</source>
        <translation>キャビネット</translation>
    </message>
    <message>
        <source>BoxNumShow</source>
        <translation>キャビネット</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Brightness in percent</source>
        <translation>明るさ (パーセント)</translation>
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
        <translation>中央</translation>
    </message>
    <message>
        <source>Chart height in pixels</source>
        <translation>テストパターンの高さ (ピクセル)</translation>
    </message>
    <message>
        <source>Chart width in pixels</source>
        <translation>テストパターンの幅 (ピクセル)</translation>
    </message>
    <message>
        <source>Chess</source>
        <translation>チェッカー</translation>
    </message>
    <message>
        <source>Circle</source>
        <translation>半径</translation>
    </message>
    <message>
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message>
        <source>Color bar</source>
        <translation>カラーバー</translation>
    </message>
    <message>
        <source>Color of the border</source>
        <translation>外枠の色</translation>
    </message>
    <message>
        <source>Color of the circles</source>
        <translation>円の色</translation>
    </message>
    <message>
        <source>Color of the custom text</source>
        <translation>任意テキストの色</translation>
    </message>
    <message>
        <source>Color of the diagonals</source>
        <translation>対角線の色</translation>
    </message>
    <message>
        <source>Color of the even cabinets</source>
        <translation>偶数のキャビネットの色</translation>
    </message>
    <message>
        <source>Color of the information line</source>
        <translation>情報の行の色</translation>
    </message>
    <message>
        <source>Color of the labels</source>
        <translation>ラベルの色</translation>
    </message>
    <message>
        <source>Color of the logo text</source>
        <translation>ロゴのテキストの色</translation>
    </message>
    <message>
        <source>Color of the odd cabinets</source>
        <translation>奇数のキャビネットの色</translation>
    </message>
    <message>
        <source>Colors of the color bar</source>
        <translation>カラーバーの色</translation>
    </message>
    <message>
        <source>Columns of cabinets</source>
        <translation>キャビネットの列数</translation>
    </message>
    <message>
        <source>Combination Mode</source>
        <translation>両方</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>決定</translation>
    </message>
    <message>
        <source>Ctrl and wheel, plus and minus zoom; 0 shows all, 1 pixel for pixel; drags and arrow keys move</source>
        <translation>Ctrl+ホイール、＋と－で拡大縮小、0 で全体、1 で等倍、ドラッグと矢印キーで移動</translation>
    </message>
    <message>
        <source>Custom text</source>
        <translation>任意テキスト</translation>
    </message>
    <message>
        <source>Customcolors</source>
        <translation>カスタムカラー</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>DeleteColorBar</source>
        <translation>この色を削除しますか？</translation>
    </message>
    <message>
        <source>Display Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Display content personalization</source>
        <translation>表示内容</translation>
    </message>
    <message>
        <source>Display custom text</source>
        <translation>任意テキスト</translation>
    </message>
    <message>
        <source>Double click or Enter changes a color, Alt+Up and Alt+Down move it</source>
        <translation>ダブルクリックまたは Enter で色を変更、Alt+↑ と Alt+↓ で移動</translation>
    </message>
    <message>
        <source>Even</source>
        <translation>偶数</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>From up to down increase Frome left to right increase</source>
        <translation>上から下、左から右</translation>
    </message>
    <message>
        <source>Gradient</source>
        <translation>グラデ</translation>
    </message>
    <message>
        <source>Gradient between the colors</source>
        <translation>色のグラデーション</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑:</translation>
    </message>
    <message>
        <source>Hue</source>
        <translation>色相:</translation>
    </message>
    <message>
        <source>Layer settings</source>
        <translation>レイヤー</translation>
    </message>
    <message>
        <source>Left Down</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Left Down Right Up</source>
        <translation>左下と右上</translation>
    </message>
    <message>
        <source>Left Up</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Left Up Right Down</source>
        <translation>左上と右下</translation>
    </message>
    <message>
        <source>Letter Mode</source>
        <translation>英字</translation>
    </message>
    <message>
        <source>Line width of the circles</source>
        <translation>円の線の太さ</translation>
    </message>
    <message>
        <source>Line width of the diagonals</source>
        <translation>対角線の太さ</translation>
    </message>
    <message>
        <source>Logo Style</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Mode selection</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>Next color</source>
        <translation>次の色</translation>
    </message>
    <message>
        <source>Num Mode</source>
        <translation>数字</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
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
        <translation>ロゴの不透明度 (パーセント)</translation>
    </message>
    <message>
        <source>Order of the labels</source>
        <translation>ラベルの順序</translation>
    </message>
    <message>
        <source>OutBorder</source>
        <translation>外枠</translation>
    </message>
    <message>
        <source>PickScreenColor</source>
        <translation>画面から色を取得</translation>
    </message>
    <message>
        <source>Picture Logo</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Position adjustment</source>
        <translation>位置調整</translation>
    </message>
    <message>
        <source>Position of the labels</source>
        <translation>ラベルの位置</translation>
    </message>
    <message>
        <source>Position of the logo</source>
        <translation>ロゴの位置</translation>
    </message>
    <message>
        <source>Preview of the chart</source>
        <translation>チャートのプレビュー</translation>
    </message>
    <message>
        <source>Previous color</source>
        <translation>前の色</translation>
    </message>
    <message>
        <source>Radius of the circles</source>
        <translation>円の半径</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤:</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>100 に戻す</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>ResolutionShow</source>
        <translation>解像度</translation>
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
        <translation>キャビネットの行数</translation>
    </message>
    <message>
        <source>Sat</source>
        <translation>彩度:</translation>
    </message>
    <message>
        <source>Scale Logo</source>
        <translation>拡大率</translation>
    </message>
    <message>
        <source>SelectColor</source>
        <translation>色の選択</translation>
    </message>
    <message>
        <source>SelectImage</source>
        <translation>ロゴの画像を選択</translation>
    </message>
    <message>
        <source>Serial Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Show Circle</source>
        <translation>円</translation>
    </message>
    <message>
        <source>Show Diagonal</source>
        <translation>対角線</translation>
    </message>
    <message>
        <source>Show Logo</source>
        <translation>ロゴ</translation>
    </message>
    <message>
        <source>Show Model</source>
        <translation>表記</translation>
    </message>
    <message>
        <source>Show Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Show Resolution</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Show Serial Number</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Show Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Show pixel for pixel</source>
        <translation>ピクセル等倍で表示</translation>
    </message>
    <message>
        <source>Show the border</source>
        <translation>外枠を表示</translation>
    </message>
    <message>
        <source>Show the circles</source>
        <translation>円を表示</translation>
    </message>
    <message>
        <source>Show the custom text</source>
        <translation>任意テキストを表示</translation>
    </message>
    <message>
        <source>Show the diagonals</source>
        <translation>対角線を表示</translation>
    </message>
    <message>
        <source>Show the information line</source>
        <translation>情報の行を表示</translation>
    </message>
    <message>
        <source>Show the labels</source>
        <translation>ラベルを表示</translation>
    </message>
    <message>
        <source>Show the logo</source>
        <translation>ロゴを表示</translation>
    </message>
    <message>
        <source>Show the whole chart</source>
        <translation>チャート全体を表示</translation>
    </message>
    <message>
        <source>Sideways shift of the logo in pixels</source>
        <translation>ロゴの横方向の移動量 (ピクセル)</translation>
    </message>
    <message>
        <source>Size of the custom text</source>
        <translation>任意テキストのサイズ</translation>
    </message>
    <message>
        <source>Size of the information line</source>
        <translation>情報の行のサイズ</translation>
    </message>
    <message>
        <source>Size of the labels</source>
        <translation>ラベルのサイズ</translation>
    </message>
    <message>
        <source>Size of the logo in percent</source>
        <translation>ロゴのサイズ (パーセント)</translation>
    </message>
    <message>
        <source>Size of the logo text</source>
        <translation>ロゴのテキストのサイズ</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>SuggestTransparentbackgroundrecommended</source>
        <translation>透過画像を推奨</translation>
    </message>
    <message>
        <source>TestImage</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>Text Input</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text Logo</source>
        <translation>テキスト</translation>
    </message>
    <message>
        <source>Text Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Text of the logo</source>
        <translation>ロゴのテキスト</translation>
    </message>
    <message>
        <source>UpLogo</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Upload your logo</source>
        <translation>画像を選択…</translation>
    </message>
    <message>
        <source>Val</source>
        <translation>明度:</translation>
    </message>
    <message>
        <source>Vertical shift of the logo in pixels</source>
        <translation>ロゴの縦方向の移動量 (ピクセル)</translation>
    </message>
    <message>
        <source>Widget</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>Width of the border</source>
        <translation>外枠の幅</translation>
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
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>fixed</source>
        <translation>開いたままにする</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right decrease</source>
        <translation>下から上、右から左</translation>
    </message>
    <message>
        <source>from down to up increase frome left to right increase</source>
        <translation>下から上、左から右</translation>
    </message>
    <message>
        <source>from up to down increase frome left to right decrease</source>
        <translation>上から下、右から左</translation>
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
        <translation>日本語</translation>
    </message>
    <message>
        <source>Test charts</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>New chart</source>
        <translation>新規テストパターン</translation>
    </message>
    <message>
        <source>Edit chart</source>
        <translation>テストパターンを編集</translation>
    </message>
    <message>
        <source>Choose folder…</source>
        <translation>フォルダーを選択…</translation>
    </message>
    <message>
        <source>Coded markers</source>
        <translation>コード化マーカー</translation>
    </message>
    <message>
        <source>The cabinets have no room for markers.</source>
        <translation>キャビネットにマーカーを置く余地がありません。</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>言語</translation>
    </message>
    <message>
        <source>Charts</source>
        <translation>パターン一覧</translation>
    </message>
    <message>
        <source>Choose the folder of the charts</source>
        <translation>テストパターンのフォルダーを選択</translation>
    </message>
    <message>
        <source>No charts here yet. Press “New chart” to make the first one.</source>
        <translation>テストパターンはまだありません。「新規テストパターン」で最初のパターンを作成してください。</translation>
    </message>
    <message>
        <source>The record of this chart cannot be read:</source>
        <translation>このテストパターンのデータを読み込めません:</translation>
    </message>
    <message>
        <source>Saved:</source>
        <translation>保存しました:</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Discard changes</source>
        <translation>変更を破棄</translation>
    </message>
    <message>
        <source>Continue editing</source>
        <translation>編集を続ける</translation>
    </message>
    <message>
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>This chart has changes that are not saved.</source>
        <translation>このテストパターンには保存されていない変更があります。</translation>
    </message>
    <message>
        <source>This chart could not be saved.</source>
        <translation>このテストパターンを保存できませんでした。</translation>
    </message>
    <message>
        <source>Try again</source>
        <translation>再試行</translation>
    </message>
    <message>
        <source>This file is damaged, or no picture that can be read.</source>
        <translation>このファイルは破損しているか、読み取れる画像ではありません。</translation>
    </message>
    <message>
        <source>The picture has %1 x %2 pixels; a logo has at most %3 x %4.</source>
        <translation>画像は %1 x %2 ピクセルです。ロゴは最大 %3 x %4 です。</translation>
    </message>
    <message>
        <source>Save elsewhere…</source>
        <translation>別の場所に保存…</translation>
    </message>
    <message>
        <source>You have no permission to write into “%1”.</source>
        <translation>「%1」に書き込む権限がありません。</translation>
    </message>
    <message>
        <source>“%1” lies on a disk that can only be read.</source>
        <translation>「%1」は読み取り専用のディスクにあります。</translation>
    </message>
    <message>
        <source>There is no space left on the disk of “%1”.</source>
        <translation>「%1」のディスクに空き容量がありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be a folder: a file is in its way.</source>
        <translation>「%1」をフォルダーにできません。同名のファイルがあります。</translation>
    </message>
    <message>
        <source>The folder “%1” is gone.</source>
        <translation>フォルダー「%1」がなくなりました。</translation>
    </message>
    <message>
        <source>An edit was not finished. Continue with it?</source>
        <translation>終了していない編集があります。続けますか？</translation>
    </message>
    <message>
        <source>%1, last changed %2</source>
        <translation>%1（最終変更 %2）</translation>
    </message>
    <message>
        <source>The logo of this chart is missing:</source>
        <translation>このテストパターンのロゴが見つかりません:</translation>
    </message>
    <message>
        <source>Somebody changed this chart meanwhile; both are kept:</source>
        <translation>このテストパターンは別の場所で変更されたため、両方を残しました:</translation>
    </message>
    <message>
        <source>This chart goes beyond what can be edited here:</source>
        <translation>このテストパターンはここで編集できる範囲を超えています:</translation>
    </message>
    <message>
        <source>There is not enough memory for this chart.</source>
        <translation>このテストパターンにはメモリーが足りません。</translation>
    </message>
    <message>
        <source>Next chart</source>
        <translation>次のテストパターン</translation>
    </message>
    <message>
        <source>Previous chart</source>
        <translation>前のテストパターン</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>黒</translation>
    </message>
    <message>
        <source>White</source>
        <translation>白</translation>
    </message>
    <message>
        <source>Colors in turn</source>
        <translation>色を順に表示</translation>
    </message>
    <message>
        <source>Grey steps</source>
        <translation>グレーの段階</translation>
    </message>
    <message>
        <source>Read a photo…</source>
        <translation>写真を読み取る…</translation>
    </message>
    <message>
        <source>Walk the wrong ones</source>
        <translation>誤りのものを順に表示</translation>
    </message>
    <message>
        <source>Reading %1…</source>
        <translation>%1 を読み取り中…</translation>
    </message>
    <message>
        <source>Show this chart on a display first.</source>
        <translation>先にこのテストパターンをディスプレイに表示してください。</translation>
    </message>
    <message>
        <source>This picture has no record, so its cabinets are not known.</source>
        <translation>この画像には記録がないため、キャビネットが分かりません。</translation>
    </message>
    <message>
        <source>This photo has too many pixels.</source>
        <translation>この写真はピクセル数が多すぎます。</translation>
    </message>
    <message>
        <source>%1: its texts are too long.</source>
        <translation>%1：中のテキストが長すぎます。</translation>
    </message>
    <message>
        <source>This program was built without OpenCV, which reads photos.</source>
        <translation>このプログラムは写真の読み取りに必要な OpenCV なしでビルドされています。</translation>
    </message>
    <message>
        <source>Walk through the cabinets</source>
        <translation>キャビネットを巡回</translation>
    </message>
    <message>
        <source>Single cabinet</source>
        <translation>キャビネット単独</translation>
    </message>
    <message>
        <source>Single row</source>
        <translation>単一の行</translation>
    </message>
    <message>
        <source>Single column</source>
        <translation>単一の列</translation>
    </message>
    <message>
        <source>By rows or by columns</source>
        <translation>行方向・列方向の切替</translation>
    </message>
    <message>
        <source>Back and forth</source>
        <translation>往復</translation>
    </message>
    <message>
        <source>Moving line</source>
        <translation>動く線</translation>
    </message>
    <message>
        <source>Frame counter</source>
        <translation>フレームカウンター</translation>
    </message>
    <message>
        <source>Run or pause</source>
        <translation>開始・一時停止</translation>
    </message>
    <message>
        <source>Faster</source>
        <translation>速く</translation>
    </message>
    <message>
        <source>Slower</source>
        <translation>遅く</translation>
    </message>
    <message>
        <source>This chart cannot be shown.</source>
        <translation>このテストパターンは表示できません。</translation>
    </message>
    <message>
        <source>Show on…</source>
        <translation>表示先…</translation>
    </message>
    <message>
        <source>Stop showing</source>
        <translation>表示を終了</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message>
        <source>Horizontal line at %1</source>
        <translation>水平線 %1</translation>
    </message>
    <message>
        <source>Vertical line at %1</source>
        <translation>垂直線 %1</translation>
    </message>
    <message>
        <source>Diagonal line at %1</source>
        <translation>斜線 %1</translation>
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
        <translation>キャビネット %1（%2 / %3）</translation>
    </message>
    <message>
        <source>A chart is shown.</source>
        <translation>テストパターンを表示中です。</translation>
    </message>
    <message>
        <source>unplugged</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>%1 left</source>
        <translation>左 %1</translation>
    </message>
    <message>
        <source>%1 above</source>
        <translation>上 %1</translation>
    </message>
    <message>
        <source>%1 right</source>
        <translation>右 %1</translation>
    </message>
    <message>
        <source>%1 below</source>
        <translation>下 %1</translation>
    </message>
    <message>
        <source>The chart has %1 pixels, the display %2.</source>
        <translation>テストパターンは %1 ピクセル、ディスプレイは %2 です。</translation>
    </message>
    <message>
        <source>Nothing of the chart is on the display.</source>
        <translation>テストパターンはディスプレイの外にあります。</translation>
    </message>
    <message>
        <source>Pixels cut off: %1.</source>
        <translation>切れるピクセル：%1。</translation>
    </message>
    <message>
        <source>Pixels that stay black: %1.</source>
        <translation>黒のまま残るピクセル：%1。</translation>
    </message>
    <message>
        <source>Color %1, %2, %3</source>
        <translation>色 %1, %2, %3</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, scaled to %3 %</source>
        <translation>%1 x %2 ピクセル、拡大率 %3 %</translation>
    </message>
    <message>
        <source>Pixels from the left of the display</source>
        <translation>ディスプレイの左端からのピクセル数</translation>
    </message>
    <message>
        <source>Pixels from the top of the display</source>
        <translation>ディスプレイの上端からのピクセル数</translation>
    </message>
    <message>
        <source>The displays of this desktop</source>
        <translation>このデスクトップのディスプレイ</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Number the displays</source>
        <translation>番号を表示</translation>
    </message>
    <message>
        <source>The chart fills the display exactly.</source>
        <translation>テストパターンはディスプレイにぴったり合います。</translation>
    </message>
    <message>
        <source>%1 pixels a frame</source>
        <translation>フレームごとに %1 ピクセル</translation>
    </message>
    <message>
        <source>%1 steps a minute</source>
        <translation>毎分 %1 ステップ</translation>
    </message>
    <message>
        <source>Frame %1</source>
        <translation>フレーム %1</translation>
    </message>
    <message>
        <source>New from…</source>
        <translation>テンプレートから作成…</translation>
    </message>
    <message>
        <source>Duplicate</source>
        <translation>複製</translation>
    </message>
    <message>
        <source>Rename…</source>
        <translation>名前を変更…</translation>
    </message>
    <message>
        <source>Tags…</source>
        <translation>タグ…</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Export…</source>
        <translation>書き出し…</translation>
    </message>
    <message>
        <source>Copy image</source>
        <translation>画像をコピー</translation>
    </message>
    <message>
        <source>Open folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>There is no file or folder “%1”.</source>
        <translation>ファイルまたはフォルダー「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>Chart</source>
        <translation>テストパターン</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>名前：</translation>
    </message>
    <message>
        <source>This chart could not be deleted.</source>
        <translation>このテストパターンを削除できませんでした。</translation>
    </message>
    <message>
        <source>Tags, with commas between:</source>
        <translation>タグ（コンマ区切り）：</translation>
    </message>
    <message>
        <source>That could not be done.</source>
        <translation>実行できませんでした。</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message>
        <source>The wall</source>
        <translation>LED ウォール</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>表示する内容</translation>
    </message>
    <message>
        <source>“%1” cannot be the name of a file.</source>
        <translation>“%1” はファイル名にできません。</translation>
    </message>
    <message>
        <source>There is a chart called “%1” already.</source>
        <translation>“%1” という名前のテストパターンがすでにあります。</translation>
    </message>
    <message>
        <source>Deleted: %1</source>
        <translation>削除しました：%1</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Brings the chart back, within ten seconds</source>
        <translation>十秒以内なら元に戻せます</translation>
    </message>
    <message>
        <source>Search name, date, size or tag</source>
        <translation>名前・日付・サイズ・タグを検索</translation>
    </message>
    <message>
        <source>Newest first</source>
        <translation>新しい順</translation>
    </message>
    <message>
        <source>Oldest first</source>
        <translation>古い順</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>名前順</translation>
    </message>
    <message>
        <source>Order of the charts</source>
        <translation>テストパターンの並び順</translation>
    </message>
    <message>
        <source>Keyboard shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Size by one pixel</source>
        <translation>大きさを一ピクセル変更</translation>
    </message>
    <message>
        <source>Size by ten pixels</source>
        <translation>大きさを十ピクセル変更</translation>
    </message>
    <message>
        <source>Next cabinet</source>
        <translation>次のキャビネット</translation>
    </message>
    <message>
        <source>Extend the selection</source>
        <translation>選択を広げる</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Jump to a chart on the output</source>
        <translation>出力でテストパターンへ移動</translation>
    </message>
    <message>
        <source>Leave the output</source>
        <translation>出力を終了</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>About</source>
        <translation>このプログラムについて</translation>
    </message>
    <message>
        <source>Copy diagnostics</source>
        <translation>診断情報をコピー</translation>
    </message>
    <message>
        <source>The next start has this theme.</source>
        <translation>このテーマは次回の起動から有効です。</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>テーマ</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Recent folders</source>
        <translation>最近使ったフォルダー</translation>
    </message>
    <message>
        <source>Taken in:</source>
        <translation>取り込みました:</translation>
    </message>
    <message>
        <source>Taken in, with its chart:</source>
        <translation>テストパターンを含めて取り込みました:</translation>
    </message>
    <message>
        <source>Taken in, with its walls:</source>
        <translation>ウォールを含めて取り込みました:</translation>
    </message>
    <message>
        <source>Two clicks edit a chart</source>
        <translation>ダブルクリックで編集します</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>赤</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>緑</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
    </message>
    <message>
        <source>Grey</source>
        <translation>グレー</translation>
    </message>
    <message>
        <source>8 greys</source>
        <translation>グレー 8 段階</translation>
    </message>
    <message>
        <source>16 greys</source>
        <translation>グレー 16 段階</translation>
    </message>
    <message>
        <source>Grey ramp</source>
        <translation>グレーのグラデーション</translation>
    </message>
    <message>
        <source>Color bars</source>
        <translation>カラーバー</translation>
    </message>
    <message>
        <source>Chessboard</source>
        <translation>市松模様</translation>
    </message>
    <message>
        <source>Numbers from top left</source>
        <translation>左上からの番号</translation>
    </message>
    <message>
        <source>Numbers from top right</source>
        <translation>右上からの番号</translation>
    </message>
    <message>
        <source>Numbers from bottom left</source>
        <translation>左下からの番号</translation>
    </message>
    <message>
        <source>Numbers from bottom right</source>
        <translation>右下からの番号</translation>
    </message>
    <message>
        <source>%1 x %2 pixels, %3 x %4 cabinets</source>
        <translation>%1 x %2 ピクセル、%3 x %4 キャビネット</translation>
    </message>
    <message>
        <source>This wall cannot be read:</source>
        <translation>このウォールを読み込めません:</translation>
    </message>
    <message>
        <source>The wall could not be saved:</source>
        <translation>ウォールを保存できませんでした:</translation>
    </message>
    <message>
        <source>New wall</source>
        <translation>新規ウォール</translation>
    </message>
    <message>
        <source>Remove or restore</source>
        <translation>取り外す／戻す</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Draw data cable</source>
        <translation>データケーブルを引く</translation>
    </message>
    <message>
        <source>Draw power cable</source>
        <translation>電源ケーブルを引く</translation>
    </message>
    <message>
        <source>Wall</source>
        <translation>ウォール</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
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
        <translation>選択したキャビネット</translation>
    </message>
    <message>
        <source>Width of the columns</source>
        <translation>列の幅</translation>
    </message>
    <message>
        <source>Height of the rows</source>
        <translation>行の高さ</translation>
    </message>
    <message>
        <source>Name of the cabinet</source>
        <translation>キャビネットの名前</translation>
    </message>
    <message>
        <source>No cabinet here</source>
        <translation>キャビネットなし</translation>
    </message>
    <message>
        <source>Begins at</source>
        <translation>開始位置</translation>
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
        <translation>方向</translation>
    </message>
    <message>
        <source>Pattern</source>
        <translation>パターン</translation>
    </message>
    <message>
        <source>One way</source>
        <translation>一方向</translation>
    </message>
    <message>
        <source>Each by itself</source>
        <translation>それぞれ個別</translation>
    </message>
    <message>
        <source>Data cables</source>
        <translation>データケーブル</translation>
    </message>
    <message>
        <source>Pixels of a port</source>
        <translation>ポートあたりの画素</translation>
    </message>
    <message>
        <source>Bits of a color</source>
        <translation>色ごとのビット</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>毎秒フレーム数</translation>
    </message>
    <message>
        <source>Backup ports</source>
        <translation>バックアップポート</translation>
    </message>
    <message>
        <source>Power cables</source>
        <translation>電源ケーブル</translation>
    </message>
    <message>
        <source>Watts of a cabinet</source>
        <translation>キャビネットのワット数</translation>
    </message>
    <message>
        <source>Watts of a circuit</source>
        <translation>回路のワット数</translation>
    </message>
    <message>
        <source>Drawn over the chart</source>
        <translation>テストパターンの上に描画</translation>
    </message>
    <message>
        <source>Black where no cabinet is</source>
        <translation>キャビネットのない所は黒</translation>
    </message>
    <message>
        <source>Outlines</source>
        <translation>輪郭</translation>
    </message>
    <message>
        <source>Frames of one pixel</source>
        <translation>一画素の枠</translation>
    </message>
    <message>
        <source>Names of cabinets</source>
        <translation>キャビネットの名前</translation>
    </message>
    <message>
        <source>Coordinates</source>
        <translation>座標</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>すべて選択</translation>
    </message>
    <message>
        <source>Whole wall</source>
        <translation>ウォール全体</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Select</source>
        <translation>選択</translation>
    </message>
    <message>
        <source>Cables by the pattern</source>
        <translation>パターンどおりの配線</translation>
    </message>
    <message>
        <source>Arrows change the size by one pixel, with Shift by ten</source>
        <translation>矢印キーで一画素、Shift を押しながらで十画素ずつサイズを変更</translation>
    </message>
    <message>
        <source>Edit wall</source>
        <translation>ウォールを編集</translation>
    </message>
    <message>
        <source>Save the changes of this wall?</source>
        <translation>このウォールの変更を保存しますか?</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2</source>
        <translation>%1 に %2 の内容が表示されています</translation>
    </message>
    <message>
        <source>%1 shows what belongs to %2, turned by %3 degrees</source>
        <translation>%1 に %2 の内容が %3 度回転して表示されています</translation>
    </message>
    <message>
        <source>%1 is mirrored top to bottom</source>
        <translation>%1 は上下が反転しています</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right</source>
        <translation>%1 は左右が反転しています</translation>
    </message>
    <message>
        <source>%1 is mirrored left to right, turned by %2 degrees</source>
        <translation>%1 は左右が反転し、%2 度回転しています</translation>
    </message>
    <message>
        <source>%1 is dark</source>
        <translation>%1 は点灯していません</translation>
    </message>
    <message>
        <source>%1 shows nothing but one colour</source>
        <translation>%1 は単色しか表示していません</translation>
    </message>
    <message>
        <source>%1 shows something else</source>
        <translation>%1 に別の内容が表示されています</translation>
    </message>
    <message>
        <source>%1 is too dark</source>
        <translation>%1 は暗すぎます</translation>
    </message>
    <message>
        <source>%1 is too bright</source>
        <translation>%1 は明るすぎます</translation>
    </message>
    <message>
        <source>%1 shows wrong colours</source>
        <translation>%1 の色が誤っています</translation>
    </message>
    <message>
        <source>%1 is hidden</source>
        <translation>%1 は隠れています</translation>
    </message>
    <message>
        <source>%1 could not be judged</source>
        <translation>%1 は判定できませんでした</translation>
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
        <translation>キャビネットを確実に区別できません: このテストパターンは 180 度回転しても同じに見えます。ラベルを付けてください</translation>
    </message>
    <message>
        <source>not sure which cabinet is which: this chart looks the same shifted by %1; give it labels</source>
        <translation>キャビネットを確実に区別できません: このテストパターンは %1 ずらしても同じに見えます。ラベルを付けてください</translation>
    </message>
    <message>
        <source>there is no picture to read</source>
        <translation>読み取る画像がありません</translation>
    </message>
    <message>
        <source>the chart was not found in the picture</source>
        <translation>画像の中にテストパターンが見つかりませんでした</translation>
    </message>
    <message>
        <source>the chart was not found in time</source>
        <translation>時間内にテストパターンが見つかりませんでした</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the left edge</source>
        <translation>左端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the top edge</source>
        <translation>上端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the right edge</source>
        <translation>右端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixel is missing at the bottom edge</source>
        <translation>下端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the left edge</source>
        <translation>左端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the top edge</source>
        <translation>上端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the right edge</source>
        <translation>右端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 chart pixels are missing at the bottom edge</source>
        <translation>下端でテストパターンの %1 ピクセルが欠けています</translation>
    </message>
    <message>
        <source>%1 is turned by %2 degrees</source>
        <translation>%1 は %2 度回転しています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right chart pixels</source>
        <translation>%1 は右へ %2 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left chart pixels</source>
        <translation>%1 は左へ %2 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 down chart pixels</source>
        <translation>%1 は下へ %2 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 up chart pixels</source>
        <translation>%1 は上へ %2 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 down chart pixels</source>
        <translation>%1 は右へ %2 ピクセル、下へ %3 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 right and %3 up chart pixels</source>
        <translation>%1 は右へ %2 ピクセル、上へ %3 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 down chart pixels</source>
        <translation>%1 は左へ %2 ピクセル、下へ %3 ピクセルずれています</translation>
    </message>
    <message>
        <source>%1 is shifted by %2 left and %3 up chart pixels</source>
        <translation>%1 は左へ %2 ピクセル、上へ %3 ピクセルずれています</translation>
    </message>
    <message>
        <source>the whole chart is mirrored left to right</source>
        <translation>テストパターン全体の左右が反転しています</translation>
    </message>
    <message>
        <source>the whole chart is turned by %1 degrees</source>
        <translation>テストパターン全体が %1 度回転しています</translation>
    </message>
    <message>
        <source>%1 and %2 are swapped</source>
        <translation>%1 と %2 が入れ替わっています</translation>
    </message>
    <message>
        <source>hidden: %1</source>
        <translation>隠れています: %1</translation>
    </message>
    <message>
        <source>not sure about: %1</source>
        <translation>判定できません: %1</translation>
    </message>
    <message>
        <source>nothing wrong was seen</source>
        <translation>誤りは見つかりませんでした</translation>
    </message>
    <message>
        <source>Whole chart</source>
        <translation>全体を表示</translation>
    </message>
    <message>
        <source>Pixel for pixel</source>
        <translation>ピクセル等倍</translation>
    </message>
    <message>
        <source>Editor</source>
        <translation>エディター</translation>
    </message>
</context>
</TS>
