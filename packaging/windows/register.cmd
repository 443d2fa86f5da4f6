@echo off
rem Registers the control for COM: for everybody when run as administrator, else for the current user.
regsvr32 "%~dp0KOVAVSFDataGridLib.ocx"
