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
        <source>State of the camera</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Sync signal input state</source>
        <translation>同期</translation>
    </message>
    <message>
        <source>recordCheck</source>
        <translation>保存</translation>
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
</context>
</TS>
