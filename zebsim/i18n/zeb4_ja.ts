<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en_US">
<context>
    <name>zeb4</name>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>設定</translation>
    </message>
    <message>
        <source>WREN Display settings</source>
        <translation>表示設定</translation>
    </message>
    <message>
        <source>WREN Default Setting</source>
        <translation>初期設定</translation>
    </message>
    <message>
        <source>wren_display_customSettings</source>
        <translation>カスタム情報</translation>
    </message>
    <message>
        <source>wren_display_externalSync</source>
        <translation>外部同期</translation>
    </message>
    <message>
        <source>Load Selected Camera</source>
        <translation>カメラから読込</translation>
    </message>
    <message>
        <source>Read xml</source>
        <translation>XML 読込</translation>
    </message>
    <message>
        <source>Write xml</source>
        <translation>XML 保存</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>適用</translation>
    </message>
    <message>
        <source>Search devices by IP address</source>
        <translation>IP アドレスで検索</translation>
    </message>
    <message>
        <source>Search all devices</source>
        <translation>全デバイスを検索</translation>
    </message>
    <message>
        <source>search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Delete all</source>
        <translation>すべて削除</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Device settings save and load</source>
        <translation>デバイス設定の保存と読込</translation>
    </message>
    <message>
        <source>Save setting</source>
        <translation>設定を保存</translation>
    </message>
    <message>
        <source>Load setting</source>
        <translation>設定を読込</translation>
    </message>
    <message>
        <source>Signal generator</source>
        <translation>信号発生器</translation>
    </message>
    <message>
        <source>Sync Hub</source>
        <translation>Sync Hub</translation>
    </message>
    <message>
        <source>Sync execute</source>
        <translation>同期実行</translation>
    </message>
    <message>
        <source>Batch Lowlight</source>
        <translation>一括ローライト</translation>
    </message>
    <message>
        <source>ON</source>
        <translation>ON</translation>
    </message>
    <message>
        <source>OFF</source>
        <translation>OFF</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>グループ</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>すべて表示</translation>
    </message>
    <message>
        <source>ConnectOnly</source>
        <translation>接続中のみ</translation>
    </message>
    <message>
        <source>DisconnectOnly</source>
        <translation>未接続のみ</translation>
    </message>
    <message>
        <source>cameraInfoTab</source>
        <translation>カメラ情報</translation>
    </message>
    <message>
        <source>livecontrolTab</source>
        <translation>ライブ設定</translation>
    </message>
    <message>
        <source>syncTab</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>irigTab</source>
        <translation>IRIG</translation>
    </message>
    <message>
        <source>pluginTab</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>memoryInfoTab</source>
        <translation>メモリ情報</translation>
    </message>
    <message>
        <source>memoryPluginTab</source>
        <translation>メモリツール</translation>
    </message>
    <message>
        <source>TabCommonItem</source>
        <translation>共通項目</translation>
    </message>
    <message>
        <source>Related settings</source>
        <translation>関連設定:</translation>
    </message>
    <message>
        <source>I/O setting...</source>
        <translation>I/O 設定...</translation>
    </message>
    <message>
        <source>Ethernet setting...</source>
        <translation>イーサネット設定...</translation>
    </message>
    <message>
        <source>For recording test purposes, skip saving after recording.</source>
        <translation>テスト撮影用: 撮影後に保存しません。</translation>
    </message>
    <message>
        <source>Trigger Test</source>
        <translation>トリガーテスト</translation>
    </message>
    <message>
        <source>Snapshot</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>Snapshot to file</source>
        <translation>ファイルへ</translation>
    </message>
    <message>
        <source>Snapshot to clipboard</source>
        <translation>クリップボードへ</translation>
    </message>
    <message>
        <source>Snapshot to file and clipboard</source>
        <translation>ファイルとクリップボードへ</translation>
    </message>
    <message>
        <source>Snapshot settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Setting...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Partition %1</source>
        <translation>パーティション %1</translation>
    </message>
    <message>
        <source>Stop live</source>
        <translation>ライブ停止</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Save layout</source>
        <translation>レイアウト保存</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>Waiting For CTS Signal</source>
        <translation>CTS 信号待ち</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Ready...</source>
        <translation>待機中...</translation>
    </message>
    <message>
        <source>Recording...</source>
        <translation>撮影中...</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>エラー</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Go on</source>
        <translation>続ける</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Camera name</source>
        <translation>カメラ名</translation>
    </message>
    <message>
        <source>Alert</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Low light off</source>
        <translation>ローライトをオフ</translation>
    </message>
    <message>
        <source>Low light on again</source>
        <translation>ローライトを再びオン</translation>
    </message>
    <message>
        <source>State of the camera</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Sync signal input state</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>recordCheck</source>
        <translation>確認済み</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>接続</translation>
    </message>
    <message>
        <source>Disconnect</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>Connecting</source>
        <translation>接続しています...</translation>
    </message>
    <message>
        <source>Disconnecting</source>
        <translation>切断しています...</translation>
    </message>
    <message>
        <source>IP address</source>
        <translation>IP アドレス</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>コメント</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>Shooting speed</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>Shutter speed</source>
        <translation>シャッター速度</translation>
    </message>
    <message>
        <source>Resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Trigger mode</source>
        <translation>トリガーモード</translation>
    </message>
    <message>
        <source>Live speed</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>_Priority</source>
        <translation>優先</translation>
    </message>
    <message>
        <source>Lowlight</source>
        <translation>ローライト</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>暗</translation>
    </message>
    <message>
        <source>bright</source>
        <translation>明</translation>
    </message>
    <message>
        <source>ExternalSync</source>
        <translation>外部同期</translation>
    </message>
    <message>
        <source>TriggerIn</source>
        <translation>トリガー入力</translation>
    </message>
    <message>
        <source>TriggerSwIn</source>
        <translation>トリガー SW 入力</translation>
    </message>
    <message>
        <source>IRIG Time Stamp</source>
        <translation>IRIG タイムスタンプ</translation>
    </message>
    <message>
        <source>IRIG Sync</source>
        <translation>IRIG 同期</translation>
    </message>
    <message>
        <source>Plugin</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Start frame</source>
        <translation>先頭フレーム</translation>
    </message>
    <message>
        <source>End frame</source>
        <translation>最終フレーム</translation>
    </message>
    <message>
        <source>selectStartFrameNo</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>selectEndFrameNo</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Save frame</source>
        <translation>フレーム数</translation>
    </message>
    <message>
        <source>triggerOffset</source>
        <translation>トリガーオフセット</translation>
    </message>
    <message>
        <source>fps</source>
        <translation>fps</translation>
    </message>
    <message>
        <source>Start Trg</source>
        <translation>スタート</translation>
    </message>
    <message>
        <source>Center Trg</source>
        <translation>センター</translation>
    </message>
    <message>
        <source>End Trg</source>
        <translation>エンド</translation>
    </message>
    <message>
        <source>Random Trg</source>
        <translation>ランダム</translation>
    </message>
    <message>
        <source>Manual Trg</source>
        <translation>マニュアル</translation>
    </message>
    <message>
        <source>Random Reset Trg</source>
        <translation>ランダムリセット</translation>
    </message>
    <message>
        <source>Random Center Trg</source>
        <translation>ランダムセンター</translation>
    </message>
    <message>
        <source>Random Manual Trg</source>
        <translation>ランダムマニュアル</translation>
    </message>
    <message>
        <source>Twostage Trg</source>
        <translation>2 段階</translation>
    </message>
    <message>
        <source>Twostage Half Trg</source>
        <translation>2 段階 1/2</translation>
    </message>
    <message>
        <source>Twostage Quarter Trg</source>
        <translation>2 段階 1/4</translation>
    </message>
    <message>
        <source>Twostage Oneeighth Trg</source>
        <translation>2 段階 1/8</translation>
    </message>
    <message>
        <source>Reset Trg</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Rec on cmd Trg</source>
        <translation>コマンド撮影</translation>
    </message>
    <message>
        <source>Random Loop Trg</source>
        <translation>ランダムループ</translation>
    </message>
    <message>
        <source>None Error Trg</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>WREN</source>
        <translation>WREN</translation>
    </message>
    <message>
        <source>Quit WREN?</source>
        <translation>WREN を終了しますか?</translation>
    </message>
    <message>
        <source>All camera</source>
        <translation>全カメラ</translation>
    </message>
    <message>
        <source>All Group</source>
        <translation>全グループ</translation>
    </message>
    <message>
        <source>External sync signal and cameras recordrate are different</source>
        <translation>外部同期信号とカメラの撮影速度が異なります</translation>
    </message>
    <message>
        <source>Delete all Cameras?</source>
        <translation>すべてのカメラを削除しますか?</translation>
    </message>
    <message>
        <source>Heads connected to the same device are also disconnected. Is it OK?</source>
        <translation>同じデバイスに接続されたヘッドも切断されます。よろしいですか?</translation>
    </message>
    <message>
        <source>Disconnect this device. Is it OK?</source>
        <translation>このデバイスを切断します。よろしいですか?</translation>
    </message>
    <message>
        <source>Bulk disconnect devices. Is it OK?</source>
        <translation>デバイスを一括切断します。よろしいですか?</translation>
    </message>
    <message>
        <source>%1 of locked heads will be changed at the same time.&lt;br&gt;Do you want to continue?</source>
        <translation>ロックされたヘッドの%1も同時に変更されます。&lt;br&gt;続行しますか?</translation>
    </message>
    <message>
        <source>There are cameras that need to erase the image data recorded to continue the operation. Would you like to erase the data and continue the operation?</source>
        <translation>操作を続けるには、撮影済みの画像データを消去する必要のあるカメラがあります。データを消去して続行しますか?</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Confirmation</source>
        <translation>確認</translation>
    </message>
    <message>
        <source>Don't show again</source>
        <translation>今後表示しない</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>メモリー</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>ライト</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>ダーク</translation>
    </message>
    <message>
        <source>Tools</source>
        <translation>ツール</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Calls</source>
        <translation>呼び出し</translation>
    </message>
    <message>
        <source>%1 cameras, %2 connected</source>
        <translation>カメラ %1 台、接続 %2 台</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>p_lut</source>
        <translation>トーンカーブ</translation>
    </message>
    <message>
        <source>p_filter</source>
        <translation>フィルター</translation>
    </message>
    <message>
        <source>p_mosaic</source>
        <translation>モザイク</translation>
    </message>
    <message>
        <source>%1: frame %2</source>
        <translation>%1: フレーム %2</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>終了(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>&amp;Settings</source>
        <translation>設定(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>表示(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;Camera</source>
        <translation>カメラ(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>A viewer with simulated cameras</source>
        <translation>シミュレートしたカメラのビューアー</translation>
    </message>
    <message>
        <source>About ZEB</source>
        <translation>ZEB について</translation>
    </message>
    <message>
        <source>Address of the signal generator</source>
        <translation>信号発生器のアドレス</translation>
    </message>
    <message>
        <source>As a fraction</source>
        <translation>分数</translation>
    </message>
    <message>
        <source>As a time</source>
        <translation>時間</translation>
    </message>
    <message>
        <source>Ask before locked heads are changed</source>
        <translation>ロックされたヘッドを変更する前に確認する</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>青</translation>
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
        <source>Yellow</source>
        <translation>黄</translation>
    </message>
    <message>
        <source>Orange</source>
        <translation>オレンジ</translation>
    </message>
    <message>
        <source>Sky blue</source>
        <translation>水色</translation>
    </message>
    <message>
        <source>Camera type</source>
        <translation>カメラの機種</translation>
    </message>
    <message>
        <source>Colour of the memory mode</source>
        <translation>メモリーモードの色</translation>
    </message>
    <message>
        <source>Colour while ready</source>
        <translation>待機中の色</translation>
    </message>
    <message>
        <source>Colour while recording</source>
        <translation>撮影中の色</translation>
    </message>
    <message>
        <source>Connected</source>
        <translation>接続中</translation>
    </message>
    <message>
        <source>Connected by radio</source>
        <translation>無線で接続中</translation>
    </message>
    <message>
        <source>Connected, slow link</source>
        <translation>接続中 (低速リンク)</translation>
    </message>
    <message>
        <source>Not connected</source>
        <translation>未接続</translation>
    </message>
    <message>
        <source>English</source>
        <translation>英語</translation>
    </message>
    <message>
        <source>Japanese</source>
        <translation>日本語</translation>
    </message>
    <message>
        <source>Ethernet</source>
        <translation>イーサネット</translation>
    </message>
    <message>
        <source>Export support file</source>
        <translation>サポートファイルの出力</translation>
    </message>
    <message>
        <source>Failed to save support file.</source>
        <translation>サポートファイルを保存できませんでした。</translation>
    </message>
    <message>
        <source>Group the digits of frame numbers</source>
        <translation>フレーム番号を桁区切りで表示する</translation>
    </message>
    <message>
        <source>Group the digits of frame rates</source>
        <translation>撮影速度を桁区切りで表示する</translation>
    </message>
    <message>
        <source>Imperial</source>
        <translation>ヤード・ポンド法</translation>
    </message>
    <message>
        <source>Metric</source>
        <translation>メートル法</translation>
    </message>
    <message>
        <source>Interval of the table in ms</source>
        <translation>表の更新間隔 (ms)</translation>
    </message>
    <message>
        <source>Language (from the next start on)</source>
        <translation>言語 (次回の起動から)</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>リンク</translation>
    </message>
    <message>
        <source>List connected cameras only</source>
        <translation>接続中のカメラだけを一覧に表示する</translation>
    </message>
    <message>
        <source>No camera is connected</source>
        <translation>接続中のカメラはありません</translation>
    </message>
    <message>
        <source>No file is open</source>
        <translation>開いているファイルはありません</translation>
    </message>
    <message>
        <source>Nothing is recorded</source>
        <translation>撮影された画像はありません</translation>
    </message>
    <message>
        <source>Offer the trigger test</source>
        <translation>トリガーテストを使う</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Play each camera in step with the common signal</source>
        <translation>共通の信号に同期して各カメラを再生する</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>プレーヤー</translation>
    </message>
    <message>
        <source>Please attach preserved file to a mail.</source>
        <translation>保存したファイルをメールに添付してください。</translation>
    </message>
    <message>
        <source>Plug-in: %1</source>
        <translation>プラグイン: %1</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message>
        <source>Record on all connected cameras</source>
        <translation>接続中のすべてのカメラで撮影する</translation>
    </message>
    <message>
        <source>Save after recording</source>
        <translation>撮影後に保存する</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>保存しています...</translation>
    </message>
    <message>
        <source>Search in the network</source>
        <translation>検索するネットワーク</translation>
    </message>
    <message>
        <source>Show images in their real bit depth</source>
        <translation>実際のビット深度で画像を表示する</translation>
    </message>
    <message>
        <source>Style</source>
        <translation>スタイル</translation>
    </message>
    <message>
        <source>The information below will be output in ZIP file format. Do you want to proceed?</source>
        <translation>以下の情報を ZIP ファイルに出力します。続行しますか?</translation>
    </message>
    <message>
        <source>- Camera setting values</source>
        <translation>- カメラの設定値</translation>
    </message>
    <message>
        <source>- ZEB setting values</source>
        <translation>- ZEB の設定値</translation>
    </message>
    <message>
        <source>- ZEB operation log</source>
        <translation>- ZEB の操作ログ</translation>
    </message>
    <message>
        <source>- SDK operation log</source>
        <translation>- SDK の操作ログ</translation>
    </message>
    <message>
        <source>- Camera log</source>
        <translation>- カメラのログ</translation>
    </message>
    <message>
        <source>- PC environment</source>
        <translation>- PC の環境</translation>
    </message>
    <message>
        <source>- ZEB version</source>
        <translation>- ZEB のバージョン</translation>
    </message>
    <message>
        <source>- ZEB full screen capture</source>
        <translation>- ZEB の画面全体の画像</translation>
    </message>
    <message>
        <source>- WREN window screen capture</source>
        <translation>- WREN の画面の画像</translation>
    </message>
    <message>
        <source>- Currently displayed image data (1 frame)</source>
        <translation>- 表示中の画像データ (1 フレーム)</translation>
    </message>
    <message>
        <source>Three numbers from 0 to 255 with dots between, as 192.168.0</source>
        <translation>0 から 255 までの数を 3 つ、ドットで区切ります (例: 192.168.0)</translation>
    </message>
    <message>
        <source>Units of length</source>
        <translation>長さの単位</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>s_display</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>s_general</source>
        <translation>全般</translation>
    </message>
    <message>
        <source>s_io</source>
        <translation>I/O</translation>
    </message>
    <message>
        <source>s_record</source>
        <translation>撮影</translation>
    </message>
    <message>
        <source>s_table</source>
        <translation>カメラテーブル</translation>
    </message>
    <message>
        <source>START OF EXPOSURE</source>
        <translation>露光開始</translation>
    </message>
    <message>
        <source>END OF EXPOSURE</source>
        <translation>露光終了</translation>
    </message>
    <message>
        <source>EVENT POS</source>
        <translation>イベント (正)</translation>
    </message>
    <message>
        <source>EVENT NEG</source>
        <translation>イベント (負)</translation>
    </message>
    <message>
        <source>NORMALLY CLOSE</source>
        <translation>ノーマルクローズ</translation>
    </message>
    <message>
        <source>NORMALLY OPEN</source>
        <translation>ノーマルオープン</translation>
    </message>
    <message>
        <source>ON CAM</source>
        <translation>ON (カメラ)</translation>
    </message>
    <message>
        <source>ON CAM POS</source>
        <translation>ON (カメラ、正)</translation>
    </message>
    <message>
        <source>ON CAM NEG</source>
        <translation>ON (カメラ、負)</translation>
    </message>
    <message>
        <source>ON OTHERS</source>
        <translation>ON (外部)</translation>
    </message>
    <message>
        <source>ON OTHERS POS</source>
        <translation>ON (外部、正)</translation>
    </message>
    <message>
        <source>ON OTHERS NEG</source>
        <translation>ON (外部、負)</translation>
    </message>
    <message>
        <source>POWER OFF POS</source>
        <translation>電源 OFF (正)</translation>
    </message>
    <message>
        <source>POWER OFF NEG</source>
        <translation>電源 OFF (負)</translation>
    </message>
    <message>
        <source>READY POS</source>
        <translation>待機 (正)</translation>
    </message>
    <message>
        <source>READY NEG</source>
        <translation>待機 (負)</translation>
    </message>
    <message>
        <source>REMOTE ON</source>
        <translation>リモート ON</translation>
    </message>
    <message>
        <source>SYNC POS</source>
        <translation>同期 (正)</translation>
    </message>
    <message>
        <source>SYNC NEG</source>
        <translation>同期 (負)</translation>
    </message>
    <message>
        <source>TRIG POS</source>
        <translation>トリガー (正)</translation>
    </message>
    <message>
        <source>TRIG NEG</source>
        <translation>トリガー (負)</translation>
    </message>
    <message>
        <source>µm</source>
        <translation>µm</translation>
    </message>
    <message>
        <source>mm</source>
        <translation>mm</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>inch</source>
        <translation>インチ</translation>
    </message>
    <message>
        <source>feet</source>
        <translation>フィート</translation>
    </message>
    <message>
        <source>yard</source>
        <translation>ヤード</translation>
    </message>
    <message>
        <source>Unknown failure.</source>
        <translation>不明なエラーです。</translation>
    </message>
    <message>
        <source>File read failed.</source>
        <translation>ファイルを読み込めませんでした。</translation>
    </message>
    <message>
        <source>File write failed.</source>
        <translation>ファイルに書き込めませんでした。</translation>
    </message>
    <message>
        <source>%1 is invalid.</source>
        <translation>%1が無効です。</translation>
    </message>
    <message>
        <source>Trigger Parameter</source>
        <translation>トリガーパラメータ</translation>
    </message>
    <message>
        <source>Input IPAddress</source>
        <translation>アドレスが正しくありません。それぞれ 0 から 255 までの数字を入力してください。最後の数字は 1 以上、192.168 では 254 以下です。</translation>
    </message>
    <message>
        <source>Batch setting</source>
        <translation>一括設定</translation>
    </message>
    <message>
        <source>Searching</source>
        <translation>検索中</translation>
    </message>
    <message>
        <source>Failed getFrequency</source>
        <translation>信号発生器から周波数を取得できませんでした。</translation>
    </message>
    <message>
        <source>Failed sync to signal generator</source>
        <translation>信号発生器を設定できませんでした。</translation>
    </message>
    <message>
        <source>Could not connect with signal generator</source>
        <translation>信号発生器に接続できませんでした。</translation>
    </message>
    <message>
        <source>can not be connected because unsupported device.</source>
        <translation>サポートされていないデバイスのため接続できません。</translation>
    </message>
    <message>
        <source>Failed to connect to Sync Hub</source>
        <translation>Sync Hub に接続できませんでした。</translation>
    </message>
    <message>
        <source>Syncing</source>
        <translation>同期設定中</translation>
    </message>
    <message>
        <source>When using the software trigger, please check the wiring of the TRIG IN terminal and enable 'Do not input software trigger to slave camera'</source>
        <translation>ソフトウェアトリガーを使用する場合は、TRIG IN 端子の配線を確認し、「スレーブカメラにソフトウェアトリガーを入力しない」を有効にしてください。</translation>
    </message>
    <message>
        <source>Dummy camera can not set synchronization</source>
        <translation>ダミーカメラには同期を設定できません。</translation>
    </message>
    <message>
        <source>The selected camera does not support sync setting</source>
        <translation>選択したカメラは同期設定に対応していません。</translation>
    </message>
    <message>
        <source>Sync setting is possible only when all cameras are in the same trigger mode.</source>
        <translation>すべてのカメラが同じトリガーモードの場合のみ同期設定ができます。</translation>
    </message>
    <message>
        <source>Synchronization setting is impossible due to the presence of low light camera.</source>
        <translation>低照度モードのカメラがあるため同期設定ができません。</translation>
    </message>
    <message>
        <source>Since the cameras with different exposure timings are mixed, the trigger mode of the start system can not be used. Consider using manual mode.</source>
        <translation>露光タイミングの異なるカメラが混在しているため、スタート系のトリガーモードは使用できません。マニュアルモードの使用を検討してください。</translation>
    </message>
    <message>
        <source>Synchronization setting can not be done because there is a dual slope shutter camera.</source>
        <translation>デュアルスロープシャッターのカメラがあるため同期設定ができません。</translation>
    </message>
    <message>
        <source>Synchronization setting is impossible because there is a camera with automatic exposure control.</source>
        <translation>自動露出制御のカメラがあるため同期設定ができません。</translation>
    </message>
    <message>
        <source>Synchronise the cameras</source>
        <translation>カメラを同期する</translation>
    </message>
    <message>
        <source>Address of the master camera</source>
        <translation>マスターカメラのアドレス</translation>
    </message>
    <message>
        <source>Port that the signal comes in by</source>
        <translation>信号の入力端子</translation>
    </message>
    <message>
        <source>Between signal and cameras</source>
        <translation>信号とカメラの間</translation>
    </message>
    <message>
        <source>L-PORT</source>
        <translation>L-PORT</translation>
    </message>
    <message>
        <source>Remind of the wiring after a synchronisation</source>
        <translation>同期設定後に配線の確認を促す</translation>
    </message>
    <message>
        <source>Lock all connected cameras.</source>
        <translation>接続中のすべてのカメラをロックしてください。</translation>
    </message>
    <message>
        <source>Problem with camera.</source>
        <translation>カメラに問題があります。</translation>
    </message>
    <message>
        <source>There are some cameras that are not synchronized shooting because the shooting speed of the device is faster than the sync frequency.</source>
        <translation>撮影速度が同期信号の周波数より速いため、同期撮影できないカメラがあります。</translation>
    </message>
    <message>
        <source>Do you want to save even though playback confirmation has not been completed?</source>
        <translation>再生確認が完了していませんが、保存しますか？</translation>
    </message>
    <message>
        <source>%1. The recording ended early with %2 frames.</source>
        <translation>%1。記録は途中で終了しました (%2 フレーム)。</translation>
    </message>
    <message>
        <source>%1: the camera has disappeared.</source>
        <translation>%1: カメラが見つからなくなりました。</translation>
    </message>
    <message>
        <source>%1: the camera was disconnected.</source>
        <translation>%1: カメラの接続が切れました。</translation>
    </message>
    <message>
        <source>%1: the camera has left the recording.</source>
        <translation>%1: カメラが撮影から外れました。</translation>
    </message>
    <message>
        <source>%1: the camera records by itself.</source>
        <translation>%1: カメラが単独で撮影中です。</translation>
    </message>
    <message>
        <source>%1: the camera is not ready.</source>
        <translation>%1: カメラの準備ができていません。</translation>
    </message>
    <message>
        <source>%1: the camera has triggered itself. It records on.</source>
        <translation>%1: カメラが自らトリガを受けました。撮影は続きます。</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. None was deleted.</source>
        <translation>準備中または撮影中のカメラがあります。削除しませんでした。</translation>
    </message>
    <message>
        <source>Its recording is lost.</source>
        <translation>記録は失われました。</translation>
    </message>
    <message>
        <source>It does not take part in the recording.</source>
        <translation>このカメラは記録に参加しません。</translation>
    </message>
    <message>
        <source>Cancel recording</source>
        <translation>記録をキャンセル</translation>
    </message>
    <message>
        <source>Disconnect all</source>
        <translation>すべて切断</translation>
    </message>
    <message>
        <source>Trigger test: the trigger has come. Nothing is recorded.</source>
        <translation>トリガテスト: トリガが入力されました。撮影はしていません。</translation>
    </message>
    <message>
        <source>%1: no frame of its record area was recorded.</source>
        <translation>%1: 記録範囲のフレームは記録されていません。</translation>
    </message>
    <message>
        <source>The recording has ended meanwhile. Nothing was done.</source>
        <translation>その間に撮影が終了しました。何も行いませんでした。</translation>
    </message>
    <message>
        <source>%1: %2 frames</source>
        <translation>%1: %2 フレーム</translation>
    </message>
    <message>
        <source>%1: %2 frames in partition %3</source>
        <translation>%1: %2 フレーム（パーティション %3）</translation>
    </message>
    <message>
        <source>Cameras hold images that nobody has saved. Record over them all the same?</source>
        <translation>保存されていない画像がカメラに残っています。上書きして撮影しますか？</translation>
    </message>
    <message>
        <source>Cameras hold images that nobody has saved. Close the viewer all the same?</source>
        <translation>保存されていない画像がカメラに残っています。ビューアを閉じますか？</translation>
    </message>
    <message>
        <source>Ask before images that nobody has saved are lost</source>
        <translation>保存されていない画像が失われる前に確認する</translation>
    </message>
    <message>
        <source>%1: %2 frames were erased.</source>
        <translation>%1: %2 フレームを消去しました。</translation>
    </message>
    <message>
        <source>Images that nobody has saved are out of reach until a search:</source>
        <translation>保存されていない画像があります。検索するまで読み出せません：</translation>
    </message>
    <message>
        <source>%1: the camera has disappeared. %2 frames of it are not saved.</source>
        <translation>%1: カメラが見つからなくなりました。%2 フレームが保存されていません。</translation>
    </message>
    <message>
        <source>%1 with %2</source>
        <translation>%1（%2 を含む）</translation>
    </message>
    <message>
        <source>%1 (earlier recording)</source>
        <translation>%1（以前の撮影）</translation>
    </message>
    <message>
        <source>The recording was ended. The cameras keep what they have; memory mode shows it.</source>
        <translation>撮影を終了しました。撮影済みの画像はカメラに残っています。メモリモードで確認できます。</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. Disconnect all the same?</source>
        <translation>撮影準備中または撮影中のカメラがあります。切断しますか？</translation>
    </message>
    <message>
        <source>Cameras are armed or recording. Close the viewer all the same?</source>
        <translation>撮影準備中または撮影中のカメラがあります。ビューアを閉じますか？</translation>
    </message>
    <message>
        <source>Trigger</source>
        <translation>トリガ</translation>
    </message>
    <message>
        <source>Saving</source>
        <translation>保存中</translation>
    </message>
    <message>
        <source>Video needs the program ffmpeg, which is not installed.</source>
        <translation>動画にはプログラム ffmpeg が必要ですが、インストールされていません。</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>形式</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>参照...</translation>
    </message>
    <message>
        <source>Frames</source>
        <translation>フレーム数</translation>
    </message>
    <message>
        <source>%1: %2 frames saved in %3</source>
        <translation>%1: %2 フレームを %3 に保存しました</translation>
    </message>
    <message>
        <source>%1: camera lost before its first frame, %2 frames not saved (%3)</source>
        <translation>%1: 最初のフレームの前にカメラを見失いました。%2 フレームは保存されていません (%3)</translation>
    </message>
    <message>
        <source>%1: camera lost after frame %2, %3 frames not saved (%4)</source>
        <translation>%1: フレーム %2 の後でカメラを見失いました。%3 フレームは保存されていません (%4)</translation>
    </message>
    <message>
        <source>%1: %2 can't be written, %3 frames not saved (%4)</source>
        <translation>%1: %2 に書き込めません。%3 フレームは保存されていません (%4)</translation>
    </message>
    <message>
        <source>%1: cancelled, %2 frames saved, %3 not</source>
        <translation>%1: キャンセルしました。保存 %2 フレーム、未保存 %3 フレーム</translation>
    </message>
    <message>
        <source>There can't be a folder %1.</source>
        <translation>フォルダー %1 は作成できません。</translation>
    </message>
    <message>
        <source>There is not enough space in %1: %2 are needed, %3 are free.</source>
        <translation>%1 の空き容量が足りません。必要 %2、空き %3 です。</translation>
    </message>
    <message>
        <source>Everything is saved.</source>
        <translation>すべて保存しました。</translation>
    </message>
    <message>
        <source>Its recording is not saved.</source>
        <translation>この記録は保存されていません。</translation>
    </message>
    <message>
        <source>the camera is gone</source>
        <translation>カメラがなくなりました</translation>
    </message>
    <message>
        <source>the recording is gone</source>
        <translation>記録がなくなりました</translation>
    </message>
    <message>
        <source>there is no such preset</source>
        <translation>そのプリセットはありません</translation>
    </message>
    <message>
        <source>no preset can be used while the camera is ready or records</source>
        <translation>カメラが撮影準備中または撮影中のため、プリセットを使用できません</translation>
    </message>
    <message>
        <source>the camera is not connected</source>
        <translation>カメラが接続されていません</translation>
    </message>
    <message>
        <source>the picture has no such form</source>
        <translation>画像をこの形式にできません</translation>
    </message>
    <message>
        <source>there can't be such a folder</source>
        <translation>このフォルダは作成できません</translation>
    </message>
    <message>
        <source>Not everything is saved.</source>
        <translation>保存されていないものがあります。</translation>
    </message>
    <message>
        <source>Images are being saved already.</source>
        <translation>画像を保存しています。</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>レイアウト</translation>
    </message>
    <message>
        <source>No connected camera has recorded images.</source>
        <translation>画像を記録した接続中のカメラがありません。</translation>
    </message>
    <message>
        <source>Stop saving? Complete files stay.</source>
        <translation>保存を中止しますか？完成したファイルは残ります。</translation>
    </message>
    <message>
        <source>Snapshots</source>
        <translation>スナップショット</translation>
    </message>
    <message>
        <source>%1 can't be written: %2</source>
        <translation>%1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>There is no image to take.</source>
        <translation>取り込む画像がありません。</translation>
    </message>
    <message>
        <source>No camera offers the shutter speed %1.</source>
        <translation>シャッター速度 %1 を設定できるカメラがありません。</translation>
    </message>
    <message>
        <source>the whole network</source>
        <translation>ネットワーク全体</translation>
    </message>
    <message>
        <source>Search in %1: found %2.</source>
        <translation>%1 の検索: %2 が見つかりました。</translation>
    </message>
    <message>
        <source>Search in %1: no further camera; those that answer are listed already.</source>
        <translation>%1 の検索: 新しいカメラはありません。応答したカメラは既に一覧にあります。</translation>
    </message>
    <message>
        <source>Search in %1: no camera answers.</source>
        <translation>%1 の検索: 応答するカメラがありません。</translation>
    </message>
    <message>
        <source>%1: not done. %2</source>
        <translation>%1: 実行されませんでした。%2</translation>
    </message>
    <message>
        <source>It was pressed twice.</source>
        <translation>2 回押されました。</translation>
    </message>
    <message>
        <source>It has just changed.</source>
        <translation>状態が変わった直後です。</translation>
    </message>
    <message>
        <source>Cameras record in live mode.</source>
        <translation>撮影はライブモードで行います。</translation>
    </message>
    <message>
        <source>No camera is connected.</source>
        <translation>カメラが接続されていません。</translation>
    </message>
    <message>
        <source>The cameras wait for their CTS signal.</source>
        <translation>カメラは CTS 信号を待っています。</translation>
    </message>
    <message>
        <source>All cameras have failed; cancel the recording first.</source>
        <translation>すべてのカメラが失敗しました。先に撮影をキャンセルしてください。</translation>
    </message>
    <message>
        <source>Images are saved in memory mode.</source>
        <translation>画像はメモリモードで保存します。</translation>
    </message>
    <message>
        <source>it is not a regular file</source>
        <translation>通常のファイルではありません</translation>
    </message>
    <message>
        <source>only a part of it could be written; the disk may be full</source>
        <translation>一部しか書き込めませんでした。ディスクがいっぱいの可能性があります</translation>
    </message>
    <message>
        <source>%1: the camera holds images that nobody has saved.</source>
        <translation>%1: 保存されていない画像がカメラにあります。</translation>
    </message>
    <message>
        <source>%1: the camera has changed to a partition with images that nobody has saved.</source>
        <translation>%1: カメラが、保存されていない画像のあるパーティションに切り替わりました。</translation>
    </message>
    <message>
        <source>%1: is armed</source>
        <translation>%1: 待機中</translation>
    </message>
    <message>
        <source>%1: records</source>
        <translation>%1: 撮影中</translation>
    </message>
    <message>
        <source>%1: %2 frames in partition %3 were erased.</source>
        <translation>%1: パーティション %3 の %2 フレームを消去しました。</translation>
    </message>
    <message>
        <source>%1: its recording lies in partition %2, and another one is in use.</source>
        <translation>%1: 撮影はパーティション %2 にあり、現在は別のパーティションが使われています。</translation>
    </message>
    <message>
        <source>No answer yet: %1</source>
        <translation>応答待ち: %1</translation>
    </message>
    <message>
        <source>No answer yet: %1 and %2 more</source>
        <translation>応答待ち: %1、ほか %2 台</translation>
    </message>
    <message>
        <source>The cameras have not answered the last command yet.</source>
        <translation>直前のコマンドにカメラがまだ応答していません。</translation>
    </message>
    <message>
        <source>%1: the command was cancelled before it</source>
        <translation>%1: コマンドは送信前にキャンセルされました</translation>
    </message>
    <message>
        <source>Device Group</source>
        <translation>カメラグループ</translation>
    </message>
    <message>
        <source>Camera Settings</source>
        <translation>カメラ設定</translation>
    </message>
    <message>
        <source>SyncControl Settings</source>
        <translation>同期設定</translation>
    </message>
    <message>
        <source>WREN List 1</source>
        <translation>WREN リスト 1</translation>
    </message>
    <message>
        <source>WREN List 2</source>
        <translation>WREN リスト 2</translation>
    </message>
    <message>
        <source>s_alert</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>Other Settings</source>
        <translation>その他の設定</translation>
    </message>
    <message>
        <source>Add Groups</source>
        <translation>グループを追加</translation>
    </message>
    <message>
        <source>Edit group</source>
        <translation>グループを編集</translation>
    </message>
    <message>
        <source>Add Device</source>
        <translation>カメラを追加</translation>
    </message>
    <message>
        <source>Edit Device</source>
        <translation>カメラを編集</translation>
    </message>
    <message>
        <source>Dummy camera</source>
        <translation>ダミーカメラ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Device Open</source>
        <translation>カメラ設定を開く</translation>
    </message>
    <message>
        <source>Device Save</source>
        <translation>カメラ設定の保存</translation>
    </message>
    <message>
        <source>Select folder</source>
        <translation>フォルダーの選択</translation>
    </message>
    <message>
        <source>Loading preset: %1 (%2 of %3)</source>
        <translation>プリセットを読み込み中: %1 (%2/%3)</translation>
    </message>
    <message>
        <source>Saving preset: %1 (%2 of %3)</source>
        <translation>プリセットに保存中: %1 (%2/%3)</translation>
    </message>
    <message>
        <source>Invalid filename.</source>
        <translation>ファイル名が正しくありません。</translation>
    </message>
    <message>
        <source>The path of the target is too long.</source>
        <translation>保存先のパスが長すぎます。</translation>
    </message>
    <message>
        <source>Do you want to overwrite it?</source>
        <translation>上書きしますか？</translation>
    </message>
    <message>
        <source>Load from camera</source>
        <translation>カメラから読み込む</translation>
    </message>
    <message>
        <source>rigx (*.rigx)</source>
        <translation>rigx (*.rigx)</translation>
    </message>
    <message>
        <source>All Files (* *.*)</source>
        <translation>すべてのファイル (* *.*)</translation>
    </message>
    <message>
        <source>The camera is locked.</source>
        <translation>カメラはロックされています。</translation>
    </message>
    <message>
        <source>%1 does not exist.</source>
        <translation>%1 は存在しません。</translation>
    </message>
    <message>
        <source>The following camera preset is loaded after rebooting. Please restart the camera.</source>
        <translation>次のカメラのプリセットは再起動後に読み込まれます。カメラを再起動してください。</translation>
    </message>
    <message>
        <source>The settings cannot be loaded because a camera with low light ON is included.</source>
        <translation>ローライトがオンのカメラが含まれているため、設定を読み込めません。</translation>
    </message>
    <message>
        <source>The setting can not be saved because low light ON camera is included.</source>
        <translation>ローライトがオンのカメラが含まれているため、設定を保存できません。</translation>
    </message>
    <message>
        <source>Enter a group name.</source>
        <translation>グループ名を入力してください。</translation>
    </message>
    <message>
        <source>group name contains characters that cannot be used.</source>
        <translation>グループ名に使えない文字が含まれています。</translation>
    </message>
    <message>
        <source>Duplicate group names.</source>
        <translation>同じ名前のグループがあります。</translation>
    </message>
    <message>
        <source>Duplicate IPAddress.</source>
        <translation>同じ IP アドレスがあります。</translation>
    </message>
    <message>
        <source>Do you want to delete the group?</source>
        <translation>グループを削除しますか?</translation>
    </message>
    <message>
        <source>Delete this Camera?</source>
        <translation>このカメラを削除しますか?</translation>
    </message>
    <message>
        <source>Delete all Groups?</source>
        <translation>すべてのグループを削除しますか?</translation>
    </message>
    <message>
        <source>Set the trigger mode</source>
        <translation>トリガモードを設定する</translation>
    </message>
    <message>
        <source>Before the trigger (%)</source>
        <translation>トリガ前 (%)</translation>
    </message>
    <message>
        <source>After the trigger (%)</source>
        <translation>トリガ後 (%)</translation>
    </message>
    <message>
        <source>Frames of each recording</source>
        <translation>1 回の撮影フレーム数</translation>
    </message>
    <message>
        <source>Limit the number of recordings</source>
        <translation>撮影回数を制限する</translation>
    </message>
    <message>
        <source>Number of recordings</source>
        <translation>撮影回数</translation>
    </message>
    <message>
        <source>Terminals</source>
        <translation>端子</translation>
    </message>
    <message>
        <source>Set by the use of a Sync Hub</source>
        <translation>Sync Hub の使用により固定</translation>
    </message>
    <message>
        <source>Locked Resolution</source>
        <translation>解像度をロックする</translation>
    </message>
    <message>
        <source>Locked Shutter Speed</source>
        <translation>シャッター速度をロックする</translation>
    </message>
    <message>
        <source>Show low light at the maximum resolution</source>
        <translation>低照度モードを最大解像度で表示する</translation>
    </message>
    <message>
        <source>Do Not Use</source>
        <translation>使用しない</translation>
    </message>
    <message>
        <source>Use L-PORT</source>
        <translation>L-PORT を使用</translation>
    </message>
    <message>
        <source>Use Sync Hub</source>
        <translation>Sync Hub を使用</translation>
    </message>
    <message>
        <source>The L-PORT passes the signal on to the cameras.</source>
        <translation>L-PORT が信号をカメラに分配します。</translation>
    </message>
    <message>
        <source>On an external signal</source>
        <translation>外部信号に同期</translation>
    </message>
    <message>
        <source>On the first camera of a chain</source>
        <translation>先頭のカメラに同期 (チェーン)</translation>
    </message>
    <message>
        <source>When connecting to %1, use the camera connected to the CAM 1 connector as the master</source>
        <translation>%1 に接続する場合は、CAM 1 コネクタに接続したカメラをマスターにしてください。</translation>
    </message>
    <message>
        <source>Frame rates on offer</source>
        <translation>選択できる撮影速度</translation>
    </message>
    <message>
        <source>Shutter speeds on offer</source>
        <translation>選択できるシャッター速度</translation>
    </message>
    <message>
        <source>Resolutions on offer</source>
        <translation>選択できる解像度</translation>
    </message>
    <message>
        <source>Sync frequencies on offer</source>
        <translation>選択できる同期周波数</translation>
    </message>
    <message>
        <source>Record areas, by frame rate</source>
        <translation>撮影速度ごとの記録範囲</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>幅</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>高さ</translation>
    </message>
    <message>
        <source>External sync signal freq</source>
        <translation>外部同期信号周波数</translation>
    </message>
    <message>
        <source>Set as default</source>
        <translation>既定値にする</translation>
    </message>
    <message>
        <source>Default (Hz)</source>
        <translation>既定値 (Hz)</translation>
    </message>
    <message>
        <source>Clear the list. Is it OK?</source>
        <translation>リストをすべて削除します。よろしいですか?</translation>
    </message>
    <message>
        <source>Cannot add because there is a duplicate %1.</source>
        <translation>同じ%1がすでにあるため追加できません。</translation>
    </message>
    <message>
        <source>input %1</source>
        <translation>%1を入力してください。</translation>
    </message>
    <message>
        <source>End frame must always be greater than the Start frame.</source>
        <translation>最終フレームは先頭フレーム以上にしてください。</translation>
    </message>
    <message>
        <source>wren_display_frameRate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>wren_display_shutterSpeed</source>
        <translation>シャッター速度</translation>
    </message>
    <message>
        <source>wren_display_resolution</source>
        <translation>解像度</translation>
    </message>
    <message>
        <source>wren_display_recordedFrameRate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>wren_display_recordedStartFrame</source>
        <translation>先頭フレーム</translation>
    </message>
    <message>
        <source>wren_display_recordedEndFrame</source>
        <translation>最終フレーム</translation>
    </message>
    <message>
        <source>Perform synchronization at the start of recording</source>
        <translation>撮影開始時に同期を実行する</translation>
    </message>
    <message>
        <source>Colours of the table</source>
        <translation>テーブルの色</translation>
    </message>
    <message>
        <source>Usual colours</source>
        <translation>標準の色に戻す</translation>
    </message>
    <message>
        <source>Columns of the table</source>
        <translation>テーブルの列</translation>
    </message>
    <message>
        <source>Usual order of the columns</source>
        <translation>標準の列順に戻す</translation>
    </message>
    <message>
        <source>wren_display_cameraSettings</source>
        <translation>カメラ設定</translation>
    </message>
    <message>
        <source>wren_display_alert</source>
        <translation>警告</translation>
    </message>
    <message>
        <source>wren_display_lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>wren_display_syncStatus</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>wren_display_triggerMode</source>
        <translation>トリガーモード</translation>
    </message>
    <message>
        <source>wren_display_reduceMode</source>
        <translation>ライブ速度</translation>
    </message>
    <message>
        <source>wren_display_syncTab</source>
        <translation>同期タブ</translation>
    </message>
    <message>
        <source>wren_display_irigTab</source>
        <translation>IRIGタブ</translation>
    </message>
    <message>
        <source>wren_display_pluginTab</source>
        <translation>ツールタブ</translation>
    </message>
    <message>
        <source>wren_display_memoryPluginTab</source>
        <translation>メモリツールタブ</translation>
    </message>
    <message>
        <source>wren_display_recordCheck</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>wren_display_triggerOffset</source>
        <translation>トリガーオフセット</translation>
    </message>
    <message>
        <source>Item name</source>
        <translation>項目名</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>値</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>単位</translation>
    </message>
    <message>
        <source>Show info</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Input the Item name and the Value at range of 1-256 character.Input the Unit at range of 0-256 character.</source>
        <translation>項目名と値は1～256文字で入力してください。単位は0～256文字で入力してください。</translation>
    </message>
    <message>
        <source>Tags cannot be registered.</source>
        <translation>タグは登録できません。</translation>
    </message>
    <message>
        <source>Item name is duplicated. Please change to another item name.</source>
        <translation>項目名が重複しています。別の項目名に変更してください。</translation>
    </message>
    <message>
        <source>Delete. Is it OK?</source>
        <translation>削除します。よろしいですか？</translation>
    </message>
    <message>
        <source>Overwrite custom information for the selected camera. Is it OK?</source>
        <translation>選択したカメラのカスタム情報を上書きします。よろしいですか？</translation>
    </message>
    <message>
        <source>an item of the custom information needs a name</source>
        <translation>カスタム情報の項目には名前が必要です</translation>
    </message>
    <message>
        <source>Cameras</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Custom info</source>
        <translation>カスタム情報</translation>
    </message>
    <message>
        <source>Custom info...</source>
        <translation>カスタム情報...</translation>
    </message>
    <message>
        <source>What is typed is in no list. Close all the same?</source>
        <translation>入力した内容はどのリストにもありません。閉じますか？</translation>
    </message>
    <message>
        <source>%1: the custom information could not be put back.</source>
        <translation>%1: カスタム情報を元に戻せませんでした。</translation>
    </message>
    <message>
        <source>The mode has changed. What was done to the custom information stays.</source>
        <translation>モードが変わりました。カスタム情報の変更はそのまま残ります。</translation>
    </message>
    <message>
        <source>No camera is selected.</source>
        <translation>カメラが選択されていません。</translation>
    </message>
    <message>
        <source>p_pseudo</source>
        <translation>疑似カラー</translation>
    </message>
    <message>
        <source>Median (pixels)</source>
        <translation>メディアン (画素)</translation>
    </message>
    <message>
        <source>Sharpen (%)</source>
        <translation>シャープ (%)</translation>
    </message>
    <message>
        <source>Square (pixels)</source>
        <translation>四角 (画素)</translation>
    </message>
    <message>
        <source>Black level</source>
        <translation>黒レベル</translation>
    </message>
    <message>
        <source>White level</source>
        <translation>白レベル</translation>
    </message>
    <message>
        <source>Gamma (1/100)</source>
        <translation>ガンマ (1/100)</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>パレット</translation>
    </message>
    <message>
        <source>Image plug-ins of the camera</source>
        <translation>カメラの画像プラグイン</translation>
    </message>
    <message>
        <source>Save to a file</source>
        <translation>ファイルに保存</translation>
    </message>
    <message>
        <source>Name of the first selected camera</source>
        <translation>最初に選択したカメラの名前</translation>
    </message>
    <message>
        <source>Own name</source>
        <translation>任意の名前</translation>
    </message>
    <message>
        <source>Add date and time</source>
        <translation>日時を付ける</translation>
    </message>
    <message>
        <source>Store in presets of the cameras</source>
        <translation>カメラのプリセットに保存</translation>
    </message>
    <message>
        <source>All cameras</source>
        <translation>すべてのカメラ</translation>
    </message>
    <message>
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>Load camera settings...</source>
        <translation>カメラ設定を読み込む...</translation>
    </message>
    <message>
        <source>Save camera settings...</source>
        <translation>カメラ設定を保存...</translation>
    </message>
    <message>
        <source>Frames from the trigger on</source>
        <translation>トリガー以降のフレーム数</translation>
    </message>
    <message>
        <source>Record area</source>
        <translation>撮影範囲</translation>
    </message>
    <message>
        <source>Low light type</source>
        <translation>ローライトの種類</translation>
    </message>
    <message>
        <source>Signals at the ports</source>
        <translation>端子の信号</translation>
    </message>
    <message>
        <source>Dual slope shutter</source>
        <translation>デュアルスロープシャッター</translation>
    </message>
    <message>
        <source>Automatic exposure</source>
        <translation>自動露出</translation>
    </message>
    <message>
        <source>IRIG</source>
        <translation>IRIG</translation>
    </message>
    <message>
        <source>IRIG Time Stamp at the end</source>
        <translation>IRIG タイムスタンプ（露光終了時）</translation>
    </message>
    <message>
        <source>Variable channel</source>
        <translation>バリアブルチャンネル</translation>
    </message>
    <message>
        <source>Binning</source>
        <translation>ビニング</translation>
    </message>
    <message>
        <source>Device alias</source>
        <translation>デバイスの別名</translation>
    </message>
    <message>
        <source>Names of the partitions</source>
        <translation>パーティション名</translation>
    </message>
    <message>
        <source>Variable channels</source>
        <translation>バリアブルチャンネル一覧</translation>
    </message>
    <message>
        <source>Image plug-ins that work</source>
        <translation>有効な画像プラグイン</translation>
    </message>
    <message>
        <source>Numbers of the image plug-ins</source>
        <translation>画像プラグインの数値</translation>
    </message>
    <message>
        <source>Curve of brightness</source>
        <translation>明るさのカーブ</translation>
    </message>
    <message>
        <source>Frame skip</source>
        <translation>コマ飛ばし</translation>
    </message>
    <message>
        <source>Mode of the frame skip</source>
        <translation>コマ飛ばしのモード</translation>
    </message>
    <message>
        <source>Frames of the frame skip</source>
        <translation>コマ飛ばしのフレーム数</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>スケール</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Flipped horizontally</source>
        <translation>左右反転</translation>
    </message>
    <message>
        <source>Flipped vertically</source>
        <translation>上下反転</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>ズーム</translation>
    </message>
    <message>
        <source>there is no such camera</source>
        <translation>そのカメラはありません</translation>
    </message>
    <message>
        <source>not in the file: %1</source>
        <translation>ファイルにない設定: %1</translation>
    </message>
    <message>
        <source>it is not in the file</source>
        <translation>ファイルにありません</translation>
    </message>
    <message>
        <source>it is not connected, and stays as it is</source>
        <translation>接続されていないため、変更しません</translation>
    </message>
    <message>
        <source>it is locked, and stays as it is</source>
        <translation>ロックされているため、変更しません</translation>
    </message>
    <message>
        <source>it is armed, and stays as it is</source>
        <translation>撮影待機中のため、変更しません</translation>
    </message>
    <message>
        <source>it records, and stays as it is</source>
        <translation>撮影中のため、変更しません</translation>
    </message>
    <message>
        <source>%1 %2 → %3</source>
        <translation>%1 %2 → %3</translation>
    </message>
    <message>
        <source>%1 stays %2</source>
        <translation>%1 %2 のまま</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
    <message>
        <source>no exposure lasts longer than a frame</source>
        <translation>露光時間はフレーム間隔を超えられません</translation>
    </message>
    <message>
        <source>all heads of the device share it, and the file has them differ</source>
        <translation>デバイスのヘッド間で共通の設定ですが、ファイルの値が異なります</translation>
    </message>
    <message>
        <source>another head of the device shares it, and stays as it is</source>
        <translation>同じデバイスの別のヘッドと共通の設定で、そのヘッドは変更しません</translation>
    </message>
    <message>
        <source>%1 is not offered</source>
        <translation>%1 は選べません</translation>
    </message>
    <message>
        <source>its settings could not be read back: %1</source>
        <translation>設定を読み直せませんでした: %1</translation>
    </message>
    <message>
        <source>%1: %2 asked, %3 taken</source>
        <translation>%1: 指定 %2、実際 %3</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 台</translation>
    </message>
    <message>
        <source>All cameras are as in "%1" already.</source>
        <translation>すべてのカメラは既に「%1」のとおりです。</translation>
    </message>
    <message>
        <source>Load the settings of "%1"? %2 settings of %3 cameras change, %4 are as in the file already.</source>
        <translation>「%1」の設定を読み込みますか？%3 台のカメラの %2 個の設定が変わり、%4 個は既にファイルのとおりです。</translation>
    </message>
    <message>
        <source>Load</source>
        <translation>読込</translation>
    </message>
    <message>
        <source>The settings of "%1" are loaded.</source>
        <translation>「%1」の設定を読み込みました。</translation>
    </message>
    <message>
        <source>Not all settings of "%1" were loaded.</source>
        <translation>「%1」の設定の一部は読み込まれませんでした。</translation>
    </message>
    <message>
        <source>no camera is connected</source>
        <translation>カメラが接続されていません</translation>
    </message>
    <message>
        <source>Cameras that are not in "%1":</source>
        <translation>「%1」に含まれないカメラ:</translation>
    </message>
    <message>
        <source>%1: it has not come back after its restart.</source>
        <translation>%1: 再起動後に復帰していません。</translation>
    </message>
    <message>
        <source>the camera is starting anew</source>
        <translation>カメラは再起動中です</translation>
    </message>
    <message>
        <source>The preset that the camera works with</source>
        <translation>カメラが使っているプリセット</translation>
    </message>
    <message>
        <source>the camera has not come back after its restart</source>
        <translation>再起動後にカメラが戻っていません</translation>
    </message>
    <message>
        <source>the camera is locked</source>
        <translation>カメラがロックされています</translation>
    </message>
    <message>
        <source>The mode has changed. No preset was loaded.</source>
        <translation>モードが変わりました。プリセットは読み込まれていません。</translation>
    </message>
    <message>
        <source>The mode has changed. No setting was loaded.</source>
        <translation>モードが変わりました。設定は読み込まれていません。</translation>
    </message>
    <message>
        <source>the camera is ready or records</source>
        <translation>カメラは撮影待ちまたは撮影中です</translation>
    </message>
    <message>
        <source>Nothing was done with: %1</source>
        <translation>実行されなかったカメラ: %1</translation>
    </message>
    <message>
        <source>these are too many settings for a file</source>
        <translation>設定が多すぎてファイルに保存できません</translation>
    </message>
    <message>
        <source>Loading "%1" changes nothing. %2 settings are as in the file already.</source>
        <translation>"%1" を読み込んでも変更はありません。%2 個の設定はすでにファイルと同じです。</translation>
    </message>
    <message>
        <source>no camera's settings can be kept</source>
        <translation>保存できるカメラの設定がありません</translation>
    </message>
    <message>
        <source>s_save</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>Name of every group folder</source>
        <translation>すべてのグループフォルダーの名前</translation>
    </message>
    <message>
        <source>Folder for all files, whatever their own</source>
        <translation>すべてのファイルの保存先（個別の設定より優先）</translation>
    </message>
    <message>
        <source>Adding a number</source>
        <translation>番号の付加</translation>
    </message>
    <message>
        <source>Digits</source>
        <translation>桁数</translation>
    </message>
    <message>
        <source>As many as the cameras need</source>
        <translation>カメラの台数に合わせる</translation>
    </message>
    <message>
        <source>Own choice</source>
        <translation>任意</translation>
    </message>
    <message>
        <source>Head</source>
        <translation>ヘッド</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>セッション</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>番号</translation>
    </message>
    <message>
        <source>Add camera</source>
        <translation>カメラの追加</translation>
    </message>
    <message>
        <source>Add camera...</source>
        <translation>カメラの追加...</translation>
    </message>
    <message>
        <source>An address is four numbers from 0 to 255 with dots between, as 192.168.0.10.</source>
        <translation>アドレスは 192.168.0.10 のように、0 から 255 までの 4 つの数をピリオドで区切って入力してください。</translation>
    </message>
    <message>
        <source>%1 at %2 is listed already.</source>
        <translation>%1 (%2) はすでに一覧にあります。</translation>
    </message>
    <message>
        <source>No camera answers at %1.</source>
        <translation>%1 のカメラから応答がありません。</translation>
    </message>
    <message>
        <source>Files to be written</source>
        <translation>書き込むファイル</translation>
    </message>
    <message>
        <source>Files: %1, about %2</source>
        <translation>ファイル数：%1（約 %2）</translation>
    </message>
    <message>
        <source>Replace files and save</source>
        <translation>ファイルを置き換えて保存</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Numbers...</source>
        <translation>番号...</translation>
    </message>
    <message>
        <source>%1 (replaced)</source>
        <translation>%1（置き換え）</translation>
    </message>
    <message>
        <source>%1 (written)</source>
        <translation>%1（書き込み済み）</translation>
    </message>
    <message>
        <source>%1 (not written)</source>
        <translation>%1（未書き込み）</translation>
    </message>
    <message>
        <source>Save again what failed</source>
        <translation>失敗したものを再保存</translation>
    </message>
    <message>
        <source>%1: %2 of %3 frames</source>
        <translation>%1：%2 / %3 フレーム</translation>
    </message>
    <message>
        <source>%1 of %2 frames are written.</source>
        <translation>%2 フレーム中 %1 フレームを書き込みました。</translation>
    </message>
    <message>
        <source>%1: not saved (%2)</source>
        <translation>%1：保存されません（%2）</translation>
    </message>
    <message>
        <source>The folder %1 is made.</source>
        <translation>フォルダー %1 を作成します。</translation>
    </message>
    <message>
        <source>%1: %2 files exist already and are replaced, the first is %3</source>
        <translation>%1：%2 個のファイルが既に存在し、置き換えられます。最初のファイル：%3</translation>
    </message>
    <message>
        <source>%1 and %2 would both write %3</source>
        <translation>%1 と %2 の両方が %3 に書き込もうとしています</translation>
    </message>
    <message>
        <source>%1: %2 &quot;%3&quot; is no name. Not allowed are %4 and control characters</source>
        <translation>%1：%2「%3」は名前として使えません。使えない文字：%4 と制御文字</translation>
    </message>
    <message>
        <source>%1: %2 (%3)</source>
        <translation>%1：%2（%3）</translation>
    </message>
    <message>
        <source>No folder is chosen.</source>
        <translation>フォルダーが選択されていません。</translation>
    </message>
    <message>
        <source>Nothing can be written into %1.</source>
        <translation>%1 には書き込めません。</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1: %2 files, about %3, in %4</source>
        <translation>%1：%2 ファイル（約 %3）、保存先 %4</translation>
    </message>
    <message>
        <source>the program that makes videos has failed</source>
        <translation>動画を作成するプログラムが失敗しました</translation>
    </message>
    <message>
        <source>a file of that name is there already</source>
        <translation>同じ名前のファイルが既にあります</translation>
    </message>
    <message>
        <source>Group folder</source>
        <translation>グループフォルダー</translation>
    </message>
    <message>
        <source>Subfolder</source>
        <translation>サブフォルダー</translation>
    </message>
    <message>
        <source>File name</source>
        <translation>ファイル名</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>他 %1 件</translation>
    </message>
    <message>
        <source>File with names for cameras (CSV)</source>
        <translation>カメラ名のファイル（CSV）</translation>
    </message>
    <message>
        <source>The camera has disappeared. Its name and comment stay as they were.</source>
        <translation>カメラがなくなりました。名前とコメントは変更されていません。</translation>
    </message>
    <message>
        <source>%1: %2 is there and is no file that could be replaced</source>
        <translation>%1：%2 は既に存在し、置き換えられるファイルではありません</translation>
    </message>
    <message>
        <source>%1 is locked. Nothing was changed.</source>
        <translation>%1 はロックされています。何も変更されていません。</translation>
    </message>
    <message>
        <source>the file that stands there has more frames</source>
        <translation>既にあるファイルの方がフレーム数が多くなっています</translation>
    </message>
    <message>
        <source>the file has gone since it was written</source>
        <translation>書き込み後にファイルがなくなりました</translation>
    </message>
    <message>
        <source>%1 is not there any more.</source>
        <translation>%1 はもうありません。</translation>
    </message>
    <message>
        <source>it is on no medium</source>
        <translation>メディア上のデータではありません</translation>
    </message>
    <message>
        <source>%1 fps</source>
        <translation>%1 fps</translation>
    </message>
    <message>
        <source>0 is best</source>
        <translation>0 が最高品質</translation>
    </message>
    <message>
        <source>0: as many as make it square</source>
        <translation>0: 正方形に近くなる列数</translation>
    </message>
    <message>
        <source>A number from %1 to %2 is needed.</source>
        <translation>%1 から %2 までの数値を入力してください。</translation>
    </message>
    <message>
        <source>A snapshot is one picture.</source>
        <translation>スナップショットは 1 枚の画像です。</translation>
    </message>
    <message>
        <source>All frames as pages of one file</source>
        <translation>全フレームを 1 ファイルのページにする</translation>
    </message>
    <message>
        <source>As the files are called</source>
        <translation>ファイル名と同じ</translation>
    </message>
    <message>
        <source>Bayer data</source>
        <translation>ベイヤーデータ</translation>
    </message>
    <message>
        <source>Between them</source>
        <translation>区切り</translation>
    </message>
    <message>
        <source>Bit depth</source>
        <translation>ビット深度</translation>
    </message>
    <message>
        <source>Codec</source>
        <translation>コーデック</translation>
    </message>
    <message>
        <source>Columns</source>
        <translation>列数</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>内容</translation>
    </message>
    <message>
        <source>Convert afterwards</source>
        <translation>保存後に変換する</translation>
    </message>
    <message>
        <source>Correction</source>
        <translation>補正</translation>
    </message>
    <message>
        <source>Custom information in its place</source>
        <translation>代わりにカスタム情報を使う</translation>
    </message>
    <message>
        <source>Digits of a frame&apos;s number</source>
        <translation>フレーム番号の桁数</translation>
    </message>
    <message>
        <source>Each camera has its own folder</source>
        <translation>カメラごとのフォルダーに保存する</translation>
    </message>
    <message>
        <source>Ending of its name</source>
        <translation>名前の末尾</translation>
    </message>
    <message>
        <source>Folders</source>
        <translation>フォルダー</translation>
    </message>
    <message>
        <source>Folders by camera</source>
        <translation>カメラ別フォルダー</translation>
    </message>
    <message>
        <source>Frames shown in a second</source>
        <translation>1 秒間の表示フレーム数</translation>
    </message>
    <message>
        <source>Free space</source>
        <translation>空き容量</translation>
    </message>
    <message>
        <source>Hand over to TAL2</source>
        <translation>TAL2 に渡す</translation>
    </message>
    <message>
        <source>Images keep the ratio of their sides</source>
        <translation>画像の縦横比を保つ</translation>
    </message>
    <message>
        <source>In a grid</source>
        <translation>格子状</translation>
    </message>
    <message>
        <source>In a row</source>
        <translation>横 1 列</translation>
    </message>
    <message>
        <source>In this order</source>
        <translation>順序</translation>
    </message>
    <message>
        <source>Information drawn on the images</source>
        <translation>画像に情報を描き込む</translation>
    </message>
    <message>
        <source>Information file beside it</source>
        <translation>情報ファイルを添える</translation>
    </message>
    <message>
        <source>Information file beside them</source>
        <translation>情報ファイルを添える</translation>
    </message>
    <message>
        <source>Information on images</source>
        <translation>画像の情報</translation>
    </message>
    <message>
        <source>Items...</source>
        <translation>項目...</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>%1 行目</translation>
    </message>
    <message>
        <source>Milliseconds</source>
        <translation>ミリ秒</translation>
    </message>
    <message>
        <source>Names and times are drawn</source>
        <translation>名前と時刻を描き込む</translation>
    </message>
    <message>
        <source>No camera here has a colour filter.</source>
        <translation>カラーフィルターを持つカメラがありません。</translation>
    </message>
    <message>
        <source>No camera here measures signals.</source>
        <translation>信号を計測するカメラがありません。</translation>
    </message>
    <message>
        <source>No image here has a correction.</source>
        <translation>補正のある画像がありません。</translation>
    </message>
    <message>
        <source>No image here has a scale.</source>
        <translation>スケールのある画像がありません。</translation>
    </message>
    <message>
        <source>No recording is chosen.</source>
        <translation>録画が選択されていません。</translation>
    </message>
    <message>
        <source>Not drawn</source>
        <translation>描かない</translation>
    </message>
    <message>
        <source>One above the other</source>
        <translation>縦 1 列</translation>
    </message>
    <message>
        <source>Only every so often a frame</source>
        <translation>フレームを間引く</translation>
    </message>
    <message>
        <source>Outside its range a camera shows</source>
        <translation>範囲外で表示するもの</translation>
    </message>
    <message>
        <source>Own size</source>
        <translation>サイズを指定</translation>
    </message>
    <message>
        <source>Own text</source>
        <translation>任意の文字列</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>品質</translation>
    </message>
    <message>
        <source>Quick</source>
        <translation>速度</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>Rather</source>
        <translation>優先</translation>
    </message>
    <message>
        <source>Replace a file of that name</source>
        <translation>同名のファイルを置き換える</translation>
    </message>
    <message>
        <source>Settings...</source>
        <translation>設定...</translation>
    </message>
    <message>
        <source>Side by side</source>
        <translation>配置</translation>
    </message>
    <message>
        <source>Signals as CSV</source>
        <translation>信号を CSV で保存</translation>
    </message>
    <message>
        <source>Signals as MME</source>
        <translation>信号を MME で保存</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message>
        <source>Speed of H264</source>
        <translation>H264 の速度</translation>
    </message>
    <message>
        <source>Tell when it is written</source>
        <translation>保存したら知らせる</translation>
    </message>
    <message>
        <source>That of one camera for all</source>
        <translation>すべてに 1 台のカメラの情報を使う</translation>
    </message>
    <message>
        <source>The camera&apos;s bits in the lower ones</source>
        <translation>カメラのビットを下位に置く</translation>
    </message>
    <message>
        <source>The codec has its own.</source>
        <translation>コーデックで決まります。</translation>
    </message>
    <message>
        <source>The folder of the original file</source>
        <translation>元のファイルのフォルダー</translation>
    </message>
    <message>
        <source>The name of the partition in its place</source>
        <translation>代わりにパーティション名を使う</translation>
    </message>
    <message>
        <source>The original name in its place</source>
        <translation>代わりに元の名前を使う</translation>
    </message>
    <message>
        <source>Thumbnail</source>
        <translation>サムネイル</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>時刻</translation>
    </message>
    <message>
        <source>What the camera adds</source>
        <translation>カメラが付け加えるもの</translation>
    </message>
    <message>
        <source>With units</source>
        <translation>単位を含める</translation>
    </message>
    <message>
        <source>Without loss</source>
        <translation>可逆圧縮</translation>
    </message>
    <message>
        <source>Written as</source>
        <translation>保存先</translation>
    </message>
    <message>
        <source>its first or last frame</source>
        <translation>最初か最後のフレーム</translation>
    </message>
    <message>
        <source>with what the camera adds</source>
        <translation>カメラが付け加えるものを含める</translation>
    </message>
    <message>
        <source>The installed ffmpeg has no encoder %1, which %2 needs.</source>
        <translation>インストールされている ffmpeg には、%2 に必要なエンコーダー %1 がありません。</translation>
    </message>
    <message>
        <source>The installed ffmpeg does not answer.</source>
        <translation>インストールされている ffmpeg が応答しません。</translation>
    </message>
    <message>
        <source>%1 in %2 files does not keep all frames at %3 frames a second.</source>
        <translation>%2 ファイルの %1 では、毎秒 %3 フレームのすべてのフレームを保持できません。</translation>
    </message>
    <message>
        <source>How files of this format are laid out is known to no program here.</source>
        <translation>この形式のファイルの構造は、ここではどのプログラムにも知られていません。</translation>
    </message>
    <message>
        <source>its frames can&apos;t be counted</source>
        <translation>フレームを数えられません</translation>
    </message>
    <message>
        <source>%1 of its %2 frames are in it</source>
        <translation>%2 フレームのうち %1 フレームしか含まれていません</translation>
    </message>
    <message>
        <source>Saved after the automatic conversion</source>
        <translation>自動変換後の保存</translation>
    </message>
    <message>
        <source>You can not edit during the conversion process.</source>
        <translation>変換処理中は編集できません。</translation>
    </message>
    <message>
        <source>There is no recording in %1.</source>
        <translation>%1 に記録画像はありません。</translation>
    </message>
    <message>
        <source>Multiple SD cards can not be opened at the same time. Are you sure you want to close all data of %1?</source>
        <translation>複数の SD カードを同時に開くことはできません。%1 のデータをすべて閉じてもよろしいですか？</translation>
    </message>
    <message>
        <source>Multiple QUIK Drives with USB connection can not be opened at the same time.Are you sure you want to close all data of %1?</source>
        <translation>USB 接続の QUIK Drive を同時に複数開くことはできません。%1 のデータをすべて閉じてもよろしいですか？</translation>
    </message>
    <message>
        <source>Multiple CFast with USB connection can not be opened at the same time.Are you sure you want to close all data of %1?</source>
        <translation>USB 接続の CFast を同時に複数開くことはできません。%1 のデータをすべて閉じてもよろしいですか？</translation>
    </message>
    <message>
        <source>Formatting is completed.</source>
        <translation>フォーマットが完了しました。</translation>
    </message>
    <message>
        <source>Formatting failed.</source>
        <translation>フォーマットに失敗しました。</translation>
    </message>
    <message>
        <source>Password setting completed..</source>
        <translation>パスワードの設定が完了しました。</translation>
    </message>
    <message>
        <source>Password setting failed.</source>
        <translation>パスワードの設定に失敗しました。</translation>
    </message>
    <message>
        <source>The installed ffmpeg makes no %1 files with %2.</source>
        <translation>インストールされている ffmpeg では、%2 の %1 ファイルを作成できません。</translation>
    </message>
    <message>
        <source>Time code...</source>
        <translation>タイムコード...</translation>
    </message>
    <message>
        <source>TAL2 is not installed.</source>
        <translation>TAL2 がインストールされていません。</translation>
    </message>
    <message>
        <source>Not while recordings are downloaded by themselves.</source>
        <translation>自動ダウンロード中は使えません。</translation>
    </message>
    <message>
        <source>no image</source>
        <translation>画像なし</translation>
    </message>
    <message>
        <source>Not in names: \ / : * ? &quot; &lt; &gt; | %</source>
        <translation>名前に使えない文字: \ / : * ? &quot; &lt; &gt; | %</translation>
    </message>
    <message>
        <source>Time code</source>
        <translation>タイムコード</translation>
    </message>
    <message>
        <source>Seconds from the trigger</source>
        <translation>トリガーからの秒数</translation>
    </message>
    <message>
        <source>As on a clock, from the trigger</source>
        <translation>トリガーからの時間（時:分:秒）</translation>
    </message>
    <message>
        <source>Frame number</source>
        <translation>フレーム番号</translation>
    </message>
    <message>
        <source>Record rate</source>
        <translation>撮影速度</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>%1 can&apos;t be started. What was saved is complete.</source>
        <translation>%1 を起動できません。保存は完了しています。</translation>
    </message>
    <message>
        <source>It is being tried whether such a video can be made.</source>
        <translation>この形式の動画を作成できるか確認しています。</translation>
    </message>
    <message>
        <source>Written: %1</source>
        <translation>保存しました: %1</translation>
    </message>
    <message>
        <source>The folder of all</source>
        <translation>共通のフォルダー</translation>
    </message>
    <message>
        <source>The path of such a folder has no ? and no |.</source>
        <translation>このフォルダーのパスには ? と | を使えません。</translation>
    </message>
    <message>
        <source>Folder of the program TAL2</source>
        <translation>TAL2 のフォルダー</translation>
    </message>
    <message>
        <source>%1 can&apos;t be read: %2</source>
        <translation>%1 を読み込めません: %2</translation>
    </message>
    <message>
        <source>the picture is not as large as the recording&apos;s</source>
        <translation>画像の大きさが記録と異なります</translation>
    </message>
    <message>
        <source>it is no picture, or a damaged one</source>
        <translation>画像ではないか、破損しています</translation>
    </message>
    <message>
        <source>it has fewer pages than the recording has frames</source>
        <translation>ページ数が記録のフレーム数より少ないです</translation>
    </message>
    <message>
        <source>it is no recording of this program</source>
        <translation>このプログラムの記録ではありません</translation>
    </message>
    <message>
        <source>it is larger than any that this program has written</source>
        <translation>このプログラムが書き込むものより大きいです</translation>
    </message>
    <message>
        <source>A video can&apos;t be opened again.</source>
        <translation>動画は再び開くことができません。</translation>
    </message>
    <message>
        <source>a newer version of this program has written it</source>
        <translation>このプログラムの新しい版で書き込まれています</translation>
    </message>
    <message>
        <source>the recording was closed</source>
        <translation>記録が閉じられました</translation>
    </message>
    <message>
        <source>it is a recording in files, and no camera</source>
        <translation>ファイルの記録であり、カメラではありません</translation>
    </message>
    <message>
        <source>%1: %2 of its files are missing</source>
        <translation>%1: ファイルが %2 個ありません</translation>
    </message>
    <message>
        <source>The recordings are open; file mode shows them.</source>
        <translation>記録を開きました。ファイルモードで表示されます。</translation>
    </message>
    <message>
        <source>Not all recordings could be opened as they were saved.</source>
        <translation>保存されたとおりに開けなかった記録があります。</translation>
    </message>
    <message>
        <source>%1 was pulled out.</source>
        <translation>%1が抜かれました。</translation>
    </message>
    <message>
        <source>SD card</source>
        <translation>SDカード</translation>
    </message>
    <message>
        <source>QUIK Drive</source>
        <translation>QUIK Drive</translation>
    </message>
    <message>
        <source>CFast</source>
        <translation>CFast</translation>
    </message>
    <message>
        <source>is open</source>
        <translation>開いています</translation>
    </message>
    <message>
        <source>is locked</source>
        <translation>ロックされています</translation>
    </message>
    <message>
        <source>write protected</source>
        <translation>書き込み禁止</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>No medium is chosen.</source>
        <translation>メディアが選択されていません。</translation>
    </message>
    <message>
        <source>It is write protected.</source>
        <translation>書き込み禁止です。</translation>
    </message>
    <message>
        <source>An SD card is formatted in its camera.</source>
        <translation>SDカードはカメラでフォーマットします。</translation>
    </message>
    <message>
        <source>It is locked by a password.</source>
        <translation>パスワードでロックされています。</translation>
    </message>
    <message>
        <source>Only a QUIK Drive has a password.</source>
        <translation>パスワードを設定できるのはQUIK Driveだけです。</translation>
    </message>
    <message>
        <source>Erase all data of %1?</source>
        <translation>%1のデータをすべて消去しますか?</translation>
    </message>
    <message>
        <source>Files of this recording are missing.</source>
        <translation>この記録のファイルが足りません。</translation>
    </message>
    <message>
        <source>There is no name.</source>
        <translation>名前がありません。</translation>
    </message>
    <message>
        <source>Delete %1 recordings from their media?</source>
        <translation>メディアから%1件の記録を削除しますか?</translation>
    </message>
    <message>
        <source>%1 could not be deleted.</source>
        <translation>%1を削除できませんでした。</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Open media...</source>
        <translation>メディアを開く...</translation>
    </message>
    <message>
        <source>Put in...</source>
        <translation>挿入...</translation>
    </message>
    <message>
        <source>Pull out</source>
        <translation>抜く</translation>
    </message>
    <message>
        <source>Write protected</source>
        <translation>書き込み禁止</translation>
    </message>
    <message>
        <source>Put in a medium</source>
        <translation>メディアの挿入</translation>
    </message>
    <message>
        <source>As 8 GB; empty: all of the disk</source>
        <translation>例: 8 GB、空欄はディスク全体</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>パスワード</translation>
    </message>
    <message>
        <source>The capacity is a size as 8 GB.</source>
        <translation>容量は8 GBのような大きさで指定します。</translation>
    </message>
    <message>
        <source>The folder is a whole path.</source>
        <translation>フォルダは完全なパスで指定します。</translation>
    </message>
    <message>
        <source>The password is wrong.</source>
        <translation>パスワードが違います。</translation>
    </message>
    <message>
        <source>Set password</source>
        <translation>パスワードの設定</translation>
    </message>
    <message>
        <source>Old password</source>
        <translation>古いパスワード</translation>
    </message>
    <message>
        <source>New password</source>
        <translation>新しいパスワード</translation>
    </message>
    <message>
        <source>Once more</source>
        <translation>もう一度</translation>
    </message>
    <message>
        <source>Empty: no password any more</source>
        <translation>空欄: パスワードをなくします</translation>
    </message>
    <message>
        <source>The old password is wrong.</source>
        <translation>古いパスワードが違います。</translation>
    </message>
    <message>
        <source>The two new passwords differ.</source>
        <translation>2つの新しいパスワードが一致しません。</translation>
    </message>
    <message>
        <source>The password is empty.</source>
        <translation>パスワードが空です。</translation>
    </message>
    <message>
        <source>There is no recording to import.</source>
        <translation>取り込む記録がありません。</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>取り込み</translation>
    </message>
    <message>
        <source>Not all recordings of %1 could be opened as they were saved.</source>
        <translation>%1の一部の記録は、保存されたとおりには開けませんでした。</translation>
    </message>
    <message>
        <source>Compared with what is saved in %1:</source>
        <translation>%1に保存されているものとの比較:</translation>
    </message>
    <message>
        <source>%1: the recording is not there any more</source>
        <translation>%1: 記録はもうありません</translation>
    </message>
    <message>
        <source>%1: saved</source>
        <translation>%1: 保存済み</translation>
    </message>
    <message>
        <source>%1: not saved</source>
        <translation>%1: 未保存</translation>
    </message>
    <message>
        <source>%1 was pulled out. Its recordings are closed.</source>
        <translation>%1が抜かれました。その記録は閉じられました。</translation>
    </message>
    <message>
        <source>%1 is locked by a password.</source>
        <translation>%1はパスワードでロックされています。</translation>
    </message>
    <message>
        <source>Formatting %1...</source>
        <translation>%1をフォーマットしています...</translation>
    </message>
    <message>
        <source>a medium needs a name</source>
        <translation>メディアには名前が必要です</translation>
    </message>
    <message>
        <source>a medium of that name is in already</source>
        <translation>その名前のメディアはすでに挿入されています</translation>
    </message>
    <message>
        <source>its folder belongs to another medium</source>
        <translation>そのフォルダは別のメディアのものです</translation>
    </message>
    <message>
        <source>there is no place for one more medium</source>
        <translation>これ以上メディアを挿入する場所がありません</translation>
    </message>
    <message>
        <source>its folder can&apos;t be made</source>
        <translation>フォルダを作成できません</translation>
    </message>
    <message>
        <source>this folder can&apos;t be a medium</source>
        <translation>このフォルダはメディアにできません</translation>
    </message>
    <message>
        <source>it is not there any more</source>
        <translation>もうありません</translation>
    </message>
    <message>
        <source>it is write protected</source>
        <translation>書き込み禁止です</translation>
    </message>
    <message>
        <source>it is a link</source>
        <translation>リンクです</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>it is damaged</source>
        <translation>壊れています</translation>
    </message>
    <message>
        <source>Format...</source>
        <translation>フォーマット...</translation>
    </message>
    <message>
        <source>Password...</source>
        <translation>パスワード...</translation>
    </message>
    <message>
        <source>Open folder...</source>
        <translation>フォルダを開く...</translation>
    </message>
    <message>
        <source>Data name</source>
        <translation>データ名</translation>
    </message>
    <message>
        <source>Import...</source>
        <translation>取り込み...</translation>
    </message>
    <message>
        <source>Check saved...</source>
        <translation>保存の確認...</translation>
    </message>
    <message>
        <source>Delete...</source>
        <translation>削除...</translation>
    </message>
    <message>
        <source>Close medium</source>
        <translation>メディアを閉じる</translation>
    </message>
    <message>
        <source>the camera was disconnected</source>
        <translation>カメラが切断されました</translation>
    </message>
    <message>
        <source>the camera does not answer</source>
        <translation>カメラが応答しません</translation>
    </message>
    <message>
        <source>No recording is open.</source>
        <translation>記録が開かれていません。</translation>
    </message>
    <message>
        <source>Convert</source>
        <translation>変換</translation>
    </message>
    <message>
        <source>Converting</source>
        <translation>変換中</translation>
    </message>
    <message>
        <source>Open recordings...</source>
        <translation>記録を開く...</translation>
    </message>
    <message>
        <source>Close recordings</source>
        <translation>記録を閉じる</translation>
    </message>
    <message>
        <source>%1: read up to %2 of %3 frames, %4 not saved (%5)</source>
        <translation>%1: %3 フレーム中 %2 フレームまで読み込み、%4 フレームは保存されていません (%5)</translation>
    </message>
    <message>
        <source>%1: %2 exists already</source>
        <translation>%1: %2 はすでにあります</translation>
    </message>
    <message>
        <source>Recordings were converted: %1</source>
        <translation>変換した記録: %1</translation>
    </message>
    <message>
        <source>Not all of %1 recordings were converted:</source>
        <translation>%1 件の記録の一部が変換されていません:</translation>
    </message>
    <message>
        <source>A folder is needed.</source>
        <translation>フォルダーを指定してください。</translation>
    </message>
    <message>
        <source>&quot;.&quot; and &quot;..&quot; are no names.</source>
        <translation>「.」と「..」は名前に使えません。</translation>
    </message>
    <message>
        <source>Each folder by camera needs a path and a name of its own.</source>
        <translation>カメラ別フォルダーには、それぞれ異なる名前とパスが必要です。</translation>
    </message>
    <message>
        <source>%1: all images are saved, but %2 can&apos;t be written (%3)</source>
        <translation>%1: 画像はすべて保存されましたが、%2 を書き込めません（%3）</translation>
    </message>
    <message>
        <source>Files and folders that are in %1 already: %2</source>
        <translation>%1 に既にあるファイルとフォルダー：%2</translation>
    </message>
    <message>
        <source>Recordings are being converted. Close the viewer all the same?</source>
        <translation>記録を変換中です。それでもビューアーを閉じますか？</translation>
    </message>
    <message>
        <source>%1 of %2 recordings, %3 frames, %4 of image data</source>
        <translation>%2 件の記録のうち %1 件、%3 フレーム、画像データ %4</translation>
    </message>
    <message>
        <source>None of the chosen recordings is there any more.</source>
        <translation>選択した記録はどれも存在しません。</translation>
    </message>
    <message>
        <source>%1: %2 is of a recording that is open, and can&apos;t be replaced</source>
        <translation>%1：%2 は開いている記録のファイルのため、置き換えられません</translation>
    </message>
    <message>
        <source>it is of a recording that is open</source>
        <translation>開いている記録のファイルです</translation>
    </message>
    <message>
        <source>%1: saved in part, without the frames %2</source>
        <translation>%1: 一部保存済み (フレーム %2 を除く)</translation>
    </message>
    <message>
        <source>%1: saved nowhere but on its medium</source>
        <translation>%1: 元のメディアにのみ保存されています</translation>
    </message>
    <message>
        <source>%1 has changed since it was opened. Close it and open it again.</source>
        <translation>%1 は開いた後に変更されました。閉じてからもう一度開いてください。</translation>
    </message>
    <message>
        <source>another folder has taken the place of the one with its files</source>
        <translation>ファイルのあったフォルダーが別のフォルダーに置き換わっています</translation>
    </message>
    <message>
        <source>%1 is formatted in its camera.</source>
        <translation>%1 はカメラでフォーマットします。</translation>
    </message>
    <message>
        <source>%1 is write protected.</source>
        <translation>%1 は書き込み禁止です。</translation>
    </message>
    <message>
        <source>it has changed since the recording was opened</source>
        <translation>記録を開いた後に変更されました</translation>
    </message>
    <message>
        <source>%1: saved whole only with loss of quality</source>
        <translation>%1：すべてのフレームは画質の劣化した形でのみ保存されています</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直し</translation>
    </message>
    <message>
        <source>Taken back: %1 (cameras: %2)</source>
        <translation>元に戻しました: %1 (カメラ: %2)</translation>
    </message>
    <message>
        <source>Done again: %1 (cameras: %2)</source>
        <translation>やり直しました: %1 (カメラ: %2)</translation>
    </message>
    <message>
        <source>another head of the device stays as it is</source>
        <translation>装置の別のヘッドはそのままです</translation>
    </message>
    <message>
        <source>it is in low light mode, and stays as it is</source>
        <translation>低照度モードのため、そのままです</translation>
    </message>
    <message>
        <source>it was changed since, and stays as it is</source>
        <translation>その後に変更されたため、そのままです</translation>
    </message>
    <message>
        <source>it is in low light mode</source>
        <translation>低照度モードです</translation>
    </message>
    <message>
        <source>%1: new %2, in the list %3</source>
        <translation>%1: 新規 %2、一覧 %3</translation>
    </message>
    <message>
        <source>found %1, connected %2, locked %3</source>
        <translation>検出 %1、接続 %2、ロック %3</translation>
    </message>
    <message>
        <source>ready %1 of %2</source>
        <translation>待機 %1/%2</translation>
    </message>
    <message>
        <source>Lock all</source>
        <translation>全てロック</translation>
    </message>
    <message>
        <source>Unlock all</source>
        <translation>全てロック解除</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>全て選択</translation>
    </message>
    <message>
        <source>no answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>as asked</source>
        <translation>指定どおり</translation>
    </message>
    <message>
        <source>%1 is not in the list.</source>
        <translation>%1 は一覧にありません。</translation>
    </message>
    <message>
        <source>Shown: %1</source>
        <translation>表示中: %1</translation>
    </message>
    <message>
        <source>Needs attention</source>
        <translation>要確認</translation>
    </message>
    <message>
        <source>These %1 cameras</source>
        <translation>この %1 台</translation>
    </message>
    <message>
        <source>is gone</source>
        <translation>なくなりました</translation>
    </message>
    <message>
        <source>not taken</source>
        <translation>受け付けず</translation>
    </message>
    <message>
        <source>kept by lock</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>taken otherwise</source>
        <translation>別の値</translation>
    </message>
    <message>
        <source>camera type %1</source>
        <translation>カメラの種類 %1</translation>
    </message>
    <message>
        <source>%1; %2 has %3</source>
        <translation>%1、%2 は %3</translation>
    </message>
    <message>
        <source>with delay: %1, without: %2</source>
        <translation>遅延あり: %1 台、なし: %2 台</translation>
    </message>
    <message>
        <source>It is the master camera.</source>
        <translation>このカメラがマスターです。</translation>
    </message>
    <message>
        <source>The master camera is not connected.</source>
        <translation>マスターカメラが接続されていません。</translation>
    </message>
    <message>
        <source>The source of the signal is not connected.</source>
        <translation>同期信号の出力元が接続されていません。</translation>
    </message>
    <message>
        <source>Signal of the generator: %1</source>
        <translation>シグナルジェネレーターの信号: %1</translation>
    </message>
    <message>
        <source>Signal of the Sync Hub: %1</source>
        <translation>Sync Hub の信号: %1</translation>
    </message>
    <message>
        <source>no frequency is chosen</source>
        <translation>周波数は選択されていません</translation>
    </message>
    <message>
        <source>Record rate: %1</source>
        <translation>撮影速度: %1</translation>
    </message>
    <message>
        <source>Recorded: %1 frames, %2</source>
        <translation>記録済み: %1 フレーム、%2</translation>
    </message>
    <message>
        <source>%1, as the signal</source>
        <translation>%1(信号と同じ)</translation>
    </message>
    <message>
        <source>%1, %2 above the signal</source>
        <translation>%1(信号より %2 高い)</translation>
    </message>
    <message>
        <source>%1, %2 below the signal</source>
        <translation>%1(信号より %2 低い)</translation>
    </message>
    <message>
        <source>No row can be changed.</source>
        <translation>変更できる行はありません。</translation>
    </message>
    <message>
        <source>Can be changed on: %1</source>
        <translation>変更できるカメラ: %1</translation>
    </message>
    <message>
        <source>Synchronisation is not in use.</source>
        <translation>同期は使用していません。</translation>
    </message>
    <message>
        <source>The cameras have not been synchronised yet.</source>
        <translation>カメラはまだ同期されていません。</translation>
    </message>
    <message>
        <source>asked for</source>
        <translation>指定値</translation>
    </message>
    <message>
        <source>recording %1 s, armed %2 of %3</source>
        <translation>撮影中 %1 秒、撮影待機・撮影中 %2/%3</translation>
    </message>
    <message>
        <source>had after it</source>
        <translation>変更後</translation>
    </message>
    <message>
        <source>Master camera: %1, %2</source>
        <translation>マスターカメラ: %1、%2</translation>
    </message>
    <message>
        <source>it is not locked</source>
        <translation>ロックされていません</translation>
    </message>
    <message>
        <source>Nothing was taken back: %1</source>
        <translation>元に戻せませんでした: %1</translation>
    </message>
    <message>
        <source>Nothing was done again: %1</source>
        <translation>やり直せませんでした: %1</translation>
    </message>
    <message>
        <source>Undo takes them back when they can be changed.</source>
        <translation>変更できるようになれば、「元に戻す」で戻ります。</translation>
    </message>
    <message>
        <source>Redo does it when they can be changed.</source>
        <translation>変更できるようになれば、「やり直し」で適用されます。</translation>
    </message>
    <message>
        <source>another change of it comes first</source>
        <translation>先に戻す変更が残っています</translation>
    </message>
    <message>
        <source>it can&apos;t have all that it had, and stays as it is</source>
        <translation>元の値をすべて設定できないため、そのまま残ります</translation>
    </message>
    <message>
        <source>Keys of the table</source>
        <translation>テーブルのキー操作</translation>
    </message>
    <message>
        <source>Arrows, Home, End, Page</source>
        <translation>矢印、Home、End、Page</translation>
    </message>
    <message>
        <source>to another cell; with Ctrl to the first or last one</source>
        <translation>セルの移動。Ctrl とともに最初または最後へ</translation>
    </message>
    <message>
        <source>Space, Enter</source>
        <translation>Space、Enter</translation>
    </message>
    <message>
        <source>work the control of the cell, else select or unselect the row</source>
        <translation>セルの操作。なければ行の選択または解除</translation>
    </message>
    <message>
        <source>into a number, a slider, a comment or the icons of plug-ins</source>
        <translation>数値、スライダー、コメント、プラグインのアイコンの入力へ</translation>
    </message>
    <message>
        <source>back to the cell; closes a list</source>
        <translation>セルへ戻る。リストを閉じる</translation>
    </message>
    <message>
        <source>Shift with arrows, Home, End, Page</source>
        <translation>Shift+矢印、Home、End、Page</translation>
    </message>
    <message>
        <source>select rows</source>
        <translation>行の選択</translation>
    </message>
    <message>
        <source>select or unselect the row</source>
        <translation>行の選択または解除</translation>
    </message>
    <message>
        <source>select all connected rows that are listed</source>
        <translation>一覧にある接続中の行をすべて選択</translation>
    </message>
    <message>
        <source>Menu key, Shift+F10</source>
        <translation>メニューキー、Shift+F10</translation>
    </message>
    <message>
        <source>what the right mouse button opens</source>
        <translation>右クリックのメニュー</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab、Shift+Tab</translation>
    </message>
    <message>
        <source>to the next button, or back</source>
        <translation>次のボタンへ、または前へ</translation>
    </message>
    <message>
        <source>Space, Enter on Record or Cancel</source>
        <translation>撮影・キャンセル上の Space、Enter</translation>
    </message>
    <message>
        <source>one press, until the key is let go</source>
        <translation>キーを離すまで 1 回の操作</translation>
    </message>
    <message>
        <source>F2</source>
        <translation>F2</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Shift+Space</source>
        <translation>Shift+Space</translation>
    </message>
    <message>
        <source>Ctrl+A</source>
        <translation>Ctrl+A</translation>
    </message>
    <message>
        <source>Only in live mode.</source>
        <translation>ライブモードでのみ使えます。</translation>
    </message>
    <message>
        <source>Not while files are shown.</source>
        <translation>ファイルの表示中は使えません。</translation>
    </message>
    <message>
        <source>Cameras wait for the CTS signal.</source>
        <translation>カメラは CTS 信号を待っています。</translation>
    </message>
    <message>
        <source>Cameras are ready to record.</source>
        <translation>カメラは記録待機中です。</translation>
    </message>
    <message>
        <source>Cameras are recording.</source>
        <translation>カメラは記録中です。</translation>
    </message>
    <message>
        <source>Nothing is being recorded.</source>
        <translation>記録していません。</translation>
    </message>
    <message>
        <source>The recording has failed.</source>
        <translation>記録に失敗しました。</translation>
    </message>
    <message>
        <source>Images are being saved.</source>
        <translation>画像を保存しています。</translation>
    </message>
    <message>
        <source>There is no camera in the list.</source>
        <translation>リストにカメラがありません。</translation>
    </message>
    <message>
        <source>No camera has its window open.</source>
        <translation>カメラのウィンドウが開いていません。</translation>
    </message>
    <message>
        <source>A camera is in low light mode.</source>
        <translation>低照度モードのカメラがあります。</translation>
    </message>
    <message>
        <source>All cameras are in low light mode.</source>
        <translation>すべてのカメラが低照度モードです。</translation>
    </message>
    <message>
        <source>No camera is in low light mode.</source>
        <translation>低照度モードのカメラはありません。</translation>
    </message>
    <message>
        <source>A lens is being calibrated.</source>
        <translation>レンズを校正しています。</translation>
    </message>
    <message>
        <source>The partitions of the cameras differ.</source>
        <translation>カメラのパーティションが一致していません。</translation>
    </message>
    <message>
        <source>Cameras save while they record.</source>
        <translation>カメラは記録しながら保存します。</translation>
    </message>
    <message>
        <source>Automatic exposure is being set.</source>
        <translation>自動露出を設定しています。</translation>
    </message>
    <message>
        <source>A trigger input is being set.</source>
        <translation>トリガー入力を設定しています。</translation>
    </message>
    <message>
        <source>A variable setting is being made.</source>
        <translation>可変設定の変更中です。</translation>
    </message>
    <message>
        <source>A point is being tracked.</source>
        <translation>点を追跡しています。</translation>
    </message>
    <message>
        <source>A command is on its way to a camera.</source>
        <translation>カメラにコマンドを送信しています。</translation>
    </message>
    <message>
        <source>An image is being adjusted.</source>
        <translation>画像を調整しています。</translation>
    </message>
    <message>
        <source>Defect pixels are being looked for.</source>
        <translation>欠陥画素を検出しています。</translation>
    </message>
    <message>
        <source>The image trigger is being looked for.</source>
        <translation>画像トリガーを検出しています。</translation>
    </message>
    <message>
        <source>The image trigger takes its pictures.</source>
        <translation>画像トリガーの画像を取得しています。</translation>
    </message>
    <message>
        <source>Another plug-in has the cameras.</source>
        <translation>別のプラグインがカメラを使っています。</translation>
    </message>
    <message>
        <source>All cameras are locked.</source>
        <translation>すべてのカメラがロックされています。</translation>
    </message>
    <message>
        <source>Only while live is stopped.</source>
        <translation>ライブの停止中のみ使えます。</translation>
    </message>
    <message>
        <source>The cameras are being armed.</source>
        <translation>カメラを記録待機にしています。</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>リストが空です。</translation>
    </message>
    <message>
        <source>With these settings no camera can be synchronised.</source>
        <translation>この設定では同期できるカメラがありません。</translation>
    </message>
    <message>
        <source>A recording is being saved.</source>
        <translation>記録を保存しています。</translation>
    </message>
    <message>
        <source>The camera is in low light mode.</source>
        <translation>カメラは低照度モードです。</translation>
    </message>
    <message>
        <source>All cameras of the list are locked.</source>
        <translation>リストのカメラはすべてロックされています。</translation>
    </message>
    <message>
        <source>The camera does not tell its lock.</source>
        <translation>カメラのロック状態が分かりません。</translation>
    </message>
    <message>
        <source>The camera keeps its live speed for now.</source>
        <translation>カメラは今はライブ速度を変えられません。</translation>
    </message>
    <message>
        <source>Only in low light mode.</source>
        <translation>低照度モードでのみ使えます。</translation>
    </message>
    <message>
        <source>Only selected cameras can be checked.</source>
        <translation>チェックできるのは選択したカメラだけです。</translation>
    </message>
    <message>
        <source>The camera is not in the list any more.</source>
        <translation>カメラはもうリストにありません。</translation>
    </message>
    <message>
        <source>Taken by a mobile device</source>
        <translation>モバイル機器が使用中</translation>
    </message>
    <message>
        <source>Not checked</source>
        <translation>チェックなし</translation>
    </message>
    <message>
        <source>Locked</source>
        <translation>ロック中</translation>
    </message>
    <message>
        <source>Unlocked</source>
        <translation>ロック解除</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>チェックあり</translation>
    </message>
    <message>
        <source>The camera does not take this plug-in now.</source>
        <translation>カメラは今このプラグインを使えません。</translation>
    </message>
    <message>
        <source>Copy rows</source>
        <translation>行をコピー</translation>
    </message>
    <message>
        <source>Save the list as CSV...</source>
        <translation>リストを CSV で保存...</translation>
    </message>
    <message>
        <source>Connection</source>
        <translation>接続状態</translation>
    </message>
    <message>
        <source>Ctrl+C</source>
        <translation>Ctrl+C</translation>
    </message>
    <message>
        <source>copy the selected rows as text; all rows where none is selected</source>
        <translation>選択した行（なければすべての行）をテキストとしてコピー</translation>
    </message>
    <message>
        <source>row %1 of %2</source>
        <translation>%2 行中 %1 行目</translation>
    </message>
    <message>
        <source>More choices</source>
        <translation>その他の選択</translation>
    </message>
    <message>
        <source>ZEB (simulated cameras)</source>
        <translation>ZEB（シミュレーションのカメラ）</translation>
    </message>
    <message>
        <source>Faults</source>
        <translation>障害</translation>
    </message>
    <message>
        <source>has vanished</source>
        <translation>消失しています</translation>
    </message>
    <message>
        <source>vanishes at %1</source>
        <translation>%1 で消失します</translation>
    </message>
    <message>
        <source>does not answer</source>
        <translation>応答しません</translation>
    </message>
    <message>
        <source>refuses %1</source>
        <translation>%1 を拒否します</translation>
    </message>
    <message>
        <source>is slow (%1 ms)</source>
        <translation>遅延しています（%1 ミリ秒）</translation>
    </message>
    <message>
        <source>is slow at %1 (%2 ms)</source>
        <translation>%1 が遅延します（%2 ミリ秒）</translation>
    </message>
    <message>
        <source>the camera refuses this</source>
        <translation>カメラがこの操作を拒否しています</translation>
    </message>
    <message>
        <source>Refuse an operation...</source>
        <translation>操作を拒否...</translation>
    </message>
    <message>
        <source>The camera refuses this operation:</source>
        <translation>カメラが拒否する操作：</translation>
    </message>
    <message>
        <source>Lift all</source>
        <translation>すべて解除</translation>
    </message>
    <message>
        <source>Lift all faults</source>
        <translation>すべての障害を解除</translation>
    </message>
    <message>
        <source>Cameras hold images that nobody has saved. Replace the cameras all the same?</source>
        <translation>保存されていない画像がカメラに残っています。それでもカメラを入れ替えますか？</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Menu %1</source>
        <translation>メニュー %1</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>キー</translation>
    </message>
    <message>
        <source>Does</source>
        <translation>動作</translation>
    </message>
    <message>
        <source>F1 in the table lists the keys of the table.</source>
        <translation>テーブルのキーは、テーブルで F1 を押すと表示されます。</translation>
    </message>
    <message>
        <source>Sce&amp;narios</source>
        <translation>シナリオ(&amp;N)</translation>
    </message>
    <message>
        <source>Connect and set</source>
        <translation>接続と設定</translation>
    </message>
    <message>
        <source>Record and save</source>
        <translation>撮影と保存</translation>
    </message>
    <message>
        <source>A camera that fails</source>
        <translation>故障するカメラ</translation>
    </message>
    <message>
        <source>Shows it with cameras of its own, which take the place of these.</source>
        <translation>専用のカメラで実演します。現在のカメラと入れ替わります。</translation>
    </message>
    <message>
        <source>A scenario runs.</source>
        <translation>シナリオを実行中です。</translation>
    </message>
    <message>
        <source>No plug-in is loaded.</source>
        <translation>プラグインが読み込まれていません。</translation>
    </message>
    <message>
        <source>Cameras are armed or record.</source>
        <translation>カメラが撮影待機中または撮影中です。</translation>
    </message>
    <message>
        <source>The scenario &quot;%1&quot; has not gone as it should.</source>
        <translation>シナリオ「%1」が予定どおりに進みませんでした。</translation>
    </message>
    <message>
        <source>Eight cameras are found, and none is connected.</source>
        <translation>カメラが 8 台見つかりました。まだ接続されていません。</translation>
    </message>
    <message>
        <source>The switch in the row &quot;All cameras&quot; has connected them.</source>
        <translation>「全カメラ」の行のスイッチで接続しました。</translation>
    </message>
    <message>
        <source>Two padlocks are closed: nothing changes these cameras now.</source>
        <translation>2 台をロックしました。これらのカメラの設定は変わりません。</translation>
    </message>
    <message>
        <source>Here are the shooting conditions of each camera.</source>
        <translation>ここに各カメラの撮影条件が表示されます。</translation>
    </message>
    <message>
        <source>One choice in the row &quot;All cameras&quot; has set the frame rate of all that are not locked.</source>
        <translation>「全カメラ」の行で選ぶと、ロックされていないすべてのカメラの撮影速度が設定されます。</translation>
    </message>
    <message>
        <source>A choice in a row sets its camera alone. What a row shows is what the camera has answered.</source>
        <translation>各行で選ぶと、そのカメラだけが設定されます。行にはカメラの応答が表示されます。</translation>
    </message>
    <message>
        <source>Four cameras are connected.</source>
        <translation>カメラ 4 台が接続されています。</translation>
    </message>
    <message>
        <source>Cameras are locked before they record.</source>
        <translation>撮影の前にカメラをロックします。</translation>
    </message>
    <message>
        <source>Record has armed them: their memories fill, and they wait for the trigger.</source>
        <translation>「撮影」で待機状態になりました。メモリに記録しながらトリガを待ちます。</translation>
    </message>
    <message>
        <source>The second press is the trigger. The cameras record until their memories are full.</source>
        <translation>2 回目の押下がトリガです。メモリがいっぱいになるまで撮影します。</translation>
    </message>
    <message>
        <source>Memory mode shows what each camera holds. The frame of the trigger is number 0.</source>
        <translation>メモリモードで各カメラの画像が示されます。トリガのフレームが 0 番です。</translation>
    </message>
    <message>
        <source>Twenty frames of each are to be saved.</source>
        <translation>各カメラの 20 フレームを保存します。</translation>
    </message>
    <message>
        <source>Each camera is ticked once somebody has looked at its images.</source>
        <translation>画像を確認したカメラにチェックを付けます。</translation>
    </message>
    <message>
        <source>Before anything is written a plan names every file.</source>
        <translation>書き込む前に、すべてのファイルが計画に示されます。</translation>
    </message>
    <message>
        <source>All is saved. The files stay there until the viewer is closed.</source>
        <translation>すべて保存しました。ファイルはビューアを閉じるまで残ります。</translation>
    </message>
    <message>
        <source>Camera 2 does not answer any more. Its row says so, the others are as before.</source>
        <translation>カメラ 2 が応答しなくなりました。その行に示され、ほかの行は変わりません。</translation>
    </message>
    <message>
        <source>It answers again, and its row is whole again.</source>
        <translation>再び応答し、行が元に戻りました。</translation>
    </message>
    <message>
        <source>Camera 3 refuses its frame rate. One message names it, and the others are set.</source>
        <translation>カメラ 3 が撮影速度を拒否します。メッセージがそのカメラを示し、ほかは設定されます。</translation>
    </message>
    <message>
        <source>The row of camera 3 shows the frame rate that it still has.</source>
        <translation>カメラ 3 の行には、変わらない撮影速度が表示されています。</translation>
    </message>
    <message>
        <source>Camera 4 has vanished, and its row with it.</source>
        <translation>カメラ 4 が消失し、その行もなくなりました。</translation>
    </message>
    <message>
        <source>It is back. The button Faults in the window of a camera does all this by hand.</source>
        <translation>カメラが戻りました。カメラのウィンドウの「障害」ボタンで、同じことを手動で行えます。</translation>
    </message>
    <message>
        <source>The keyboard has just come here.</source>
        <translation>キーボードは今ここに移りました。</translation>
    </message>
</context>
</TS>
