@echo off
rem Takes the registration away again.
regsvr32 /u "%~dp0KOVAVSFDataGridLib.ocx"
